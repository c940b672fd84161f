#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Files;

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

/// Why documents can't be imported, for the user.
struct ImportProblem {
    std::wstring text;
};

ImportProblem tooManyDocuments();

/// What a file names, each by its full path.
struct FileLines {
    /// How many that name no document are kept, to be told.
    static constexpr int kTold = 5;
    /// More lines than that name more documents than a list holds, whichever of them are there.
    static constexpr std::size_t kMost = 100'000;

    struct Line {
        int place;                         ///< among those that aren't blank
        std::wstring text;                 ///< as it was written
        std::optional<std::wstring> path;  ///< none when it names no document
    };

    std::vector<Line> lines = {};
    int count = 0;     ///< of all
    int nameless = 0;  ///< of those that name no document
    std::optional<ImportProblem> problem = {};
};

/// Whether a file that is dropped is read for what it names: a text, a table or a list file.
bool mayNameDocuments(const std::wstring& path);

/// Reads a text, a table or, by its ending, a list file. One that another program holds for a
/// moment is waited for. Raises 53, 70, 75 or 76.
FileLines linesOf(Files& files, const std::wstring& file);
