#pragma once

#include <string>
#include <string_view>

#include "ports/files.h"
#include "worklist/work_list.h"

/// The path of a file beside a list file: the list's with this ending instead of ".lst".
std::wstring besideList(std::wstring_view listFile, std::wstring_view ending);

// The list file has one line per document: its state code, two blanks, its full path, CR LF.

/// Reads the text of a list file into a list. A code over 9 is reduced by 10, and the reload flag
/// set. False when the text has no line: the list stays as it was. Raises 5 for a line shorter than
/// three characters, 9 past 8001 lines; the error names the line of the file.
bool parseListFile(std::string text, WorkList& list, const std::wstring& file = {});

/// Writes the first `lineCount` lines. As a side effect each call puts a 1 before the code of every
/// flagged line in the list. Raises 9 past the table.
void formatListFile(WorkList& list, std::int32_t lineCount, const ByteSink& file);

/// Appends the line of a document to do, as a launch writes it. Raises 5 for a path that can't be
/// encoded.
void appendFreshLine(std::string& text, std::wstring_view path);
