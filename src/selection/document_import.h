#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "ports/search.h"

/// What is known about a document that a line names. All but the first two leave the line out.
enum class Presence : std::uint8_t {
    Unknown,
    There,
    NotFound,
    NoDocument,
    Directory,
    OutOfReach,
    Refused
};

/// What an import doesn't add to the list.
struct ImportRemains {
    struct Line {
        int place;  ///< among all lines of the import
        std::wstring text;
        Presence why;
    };

    int leftOut = 0;
    std::vector<Line> first;  ///< the first five that were left out
    int repeated = 0;         ///< lines that name a document a second time
};

/// Documents on their way into the list: named by files, dropped, or found below dropped
/// directories. They are gathered first and looked for later, when it is known which servers may be
/// asked. Both steps raise what the watch raises.
class DocumentImport {
 public:
    enum class End {
        Complete,
        Interrupted,  ///< by the watch
        Refused       ///< problem() says why
    };
    using Progress = std::function<void(int documents)>;

    explicit DocumentImport(const SearchServices& services) : services_(services) {}

    /// Takes the documents that a file names: a text, a table or, by its extension, a list file.
    End gatherFile(const std::wstring& file);

    /// Takes dropped files and directories. When it is interrupted, takeDocuments() returns what
    /// was found below the directories so far.
    End gatherDropped(const std::vector<std::wstring>& paths, const Progress& progress);

    /// The servers, in capitals, that would be asked about documents although neither the imported
    /// files nor a drive are on them.
    std::vector<std::wstring> foreignServers() const;
    void leaveOutServers(const std::vector<std::wstring>& servers);

    /// Finds out which documents exist.
    End look();

    /// Hands over the documents that exist, in order, each once.
    std::vector<std::wstring> takeDocuments() { return std::move(documents_); }
    const ImportRemains& remains() const { return remains_; }
    const std::wstring& problem() const { return problem_; }

 private:
    struct Document {
        std::wstring path;
        Presence presence;
        bool listed = false;
    };
    /// A line that names a document.
    struct Line {
        int place;
        std::wstring text;     ///< as it was written
        std::size_t document;  ///< its place in `named_`
    };

    template <class Action>
    End unlessRefused(const Action& action);
    bool takeDropped(const std::wstring& path, Presence presence, const Progress& progress);
    bool takeDirectory(const std::wstring& directory, const Progress& progress);
    bool takeFile(const std::wstring& file);
    /// Makes room for so many more lines.
    void reserve(std::size_t more);
    void add(int place, std::wstring text, std::wstring path, Presence presence);
    void leaveOut(int place, const std::wstring& text, Presence why);
    bool lookAtUnknown();
    void settle();

    SearchServices services_;
    std::vector<Line> lines_;
    std::vector<Document> named_;
    std::unordered_map<std::wstring, std::size_t> numbers_;  ///< their places, by path in capitals
    std::vector<std::wstring> ownServers_;
    std::vector<std::wstring> documents_;
    ImportRemains remains_;
    std::wstring problem_;
    int place_ = 0;
};
