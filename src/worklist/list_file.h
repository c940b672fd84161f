#pragma once

#include <string>
#include <string_view>

#include "worklist/work_list.h"

/// The path of a file that stands beside a list file: the list's, with this ending for ".lst".
std::wstring besideList(std::wstring_view listFile, std::wstring_view ending);

// The list file: one line per document, its state code, two blanks, its full path, CR LF.

/// Reads the text of a list file into a list. A code over 9 is stored less 10 with the reload flag
/// set. False, the list untouched, when the text has no line. Raises 5 for a line shorter than
/// three characters, 9 past 8001 lines; the error names the line of the file.
bool parseListFile(std::string text, WorkList& list, const std::wstring& file = {});

/// The text for the first `lineCount` lines. As a side effect the code of every flagged line is
/// given a leading 1 in the list, once more at each call. Raises 9 past the table.
std::string formatListFile(WorkList& list, std::int32_t lineCount);

/// Appends the line of a document still to do, as a freshly launched pass writes it. Raises 5 for
/// a path that can't be encoded.
void appendFreshLine(std::string& text, std::wstring_view path);
