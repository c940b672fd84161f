#pragma once

#include <functional>
#include <string_view>

/// The documents that a pass can open, by the ends of their names, in any case.
bool isDocumentName(std::string_view utf8);

/// A line of a text, a table or a list file. `text` is the field that names a document, or the
/// whole line when none does.
struct DocumentLine {
    int number;  ///< counted from 1
    std::string_view text;
    bool namesDocument;
};

// Both hand on the lines of a file, in UTF-8, in order; blank ones are left out. A text is valid
// only while its line is visited.

/// A text or a table: of each line the first field that names a document counts. Fields stand
/// between semicolons or tabs, with the quotes of RFC 4180. One that isn't closed in its line is a
/// letter, so that it hides no document. The first line of a report is left out.
void readTable(std::string_view utf8, const std::function<void(const DocumentLine&)>& visit);

/// A list file: what stands behind the first three characters, whatever kind of document it is.
void readListLines(std::string_view utf8, const std::function<void(const DocumentLine&)>& visit);
