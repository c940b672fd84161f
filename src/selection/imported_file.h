#pragma once

#include <optional>
#include <string>
#include <vector>

class Files;

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
