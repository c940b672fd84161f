#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Files;

/// Whether a name has the extension of a document that a pass can open, in any case.
bool isDocumentName(std::string_view utf8);

/// A line of a text, a table or a list file. `text` is the field that names a document, or the
/// whole line when none does.
struct DocumentLine {
    int number;  ///< counted from 1
    std::string_view text;
    bool namesDocument;
};

// Both visit the lines of a file in UTF-8, in order, but for blank ones. A line's text is valid
// only while the line is visited.

/// A text or a table, in whose lines the first field that names a document counts. Fields are
/// separated by semicolons or tabs and may be quoted as in RFC 4180. A quote that isn't closed in
/// its line is a plain character, so that it hides no document. A report's first line is left out.
void readTable(std::string_view utf8, const std::function<void(const DocumentLine&)>& visit);

/// A list file, in whose lines everything after the third character is the document, of whatever
/// kind.
void readListLines(std::string_view utf8, const std::function<void(const DocumentLine&)>& visit);

/// Why documents can't be imported, in French.
struct ImportProblem {
    std::wstring text;
};

ImportProblem tooManyDocuments();

/// The lines of a file, with the full paths of the documents they name.
struct FileLines {
    /// How many lines that name no document are kept to be shown.
    static constexpr int kTold = 5;
    /// A file with more lines certainly names more documents than a list holds.
    static constexpr std::size_t kMost = 100'000;

    struct Line {
        int place;                         ///< among the lines that aren't blank
        std::wstring text;                 ///< as written in the file
        bool namesDocument;                ///< otherwise `text` is the whole line
        std::optional<std::wstring> path;  ///< nothing where it leads nowhere
    };

    std::vector<Line> lines = {};
    int count = 0;     ///< of all lines
    int nameless = 0;  ///< of the lines that name no document
    std::optional<ImportProblem> problem = {};
};

/// Whether a dropped file is read for the documents it names: a text, a table or a list file.
bool mayNameDocuments(const std::wstring& path);

/// Reads a text, a table or, by its extension, a list file. Waits for a file that another program
/// holds for a moment. Raises 53, 70, 75 or 76.
FileLines linesOf(Files& files, const std::wstring& file);
