#pragma once

#include <string>

class Clock;
struct WorkList;

/// What happened to each document of a list, as a table for spreadsheets: UTF-8 with byte-order
/// mark, semicolons, CR LF. That is RFC 4180 but for the separator: where numbers have a decimal
/// comma spreadsheets expect the semicolon. Times are local.
std::string reportOf(const WorkList& list, const Clock& clock);
