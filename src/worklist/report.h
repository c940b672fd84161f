#pragma once

#include <string>

class Clock;
struct WorkList;

/// What happened to each document of a list, as a table for spreadsheets: UTF-8 with its mark,
/// semicolons, CR LF (RFC 4180, but for the separator, which spreadsheets expect where the comma
/// is in numbers). Times are local.
std::string reportOf(const WorkList& list, const Clock& clock);
