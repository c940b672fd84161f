#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

#include "ports/search.h"

/// What is known of a document that a line names. All but the first two leave the line out.
enum class Presence : std::uint8_t { Unknown, There, NotFound, NoDocument, OutOfReach, Refused };

/// What of an import becomes no document of the list.
struct ImportRemains {
    struct Line {
        int place;  ///< in the order of all lines
        std::wstring text;
        Presence why;
    };

    int leftOut = 0;
    std::vector<Line> first;  ///< the first five that were left out
    int repeated = 0;         ///< lines that name a document again
};

/// Documents on their way into the list: named by files, dropped, or found below directories that
/// were dropped. First they are gathered, then, once it is known which servers may be asked, looked
/// for. Both raise what the watch raises.
class DocumentImport {
 public:
    enum class End {
        Complete,
        Interrupted,  ///< by the watch
        Refused       ///< problem() tells why
    };
    using Progress = std::function<void(int documents)>;

    explicit DocumentImport(const SearchServices& services) : services_(services) {}

    /// Takes what a file names: a text, a table or, by its ending, a list file.
    End gatherFile(const std::wstring& file);

    /// Takes files and directories as they were dropped. Interrupted where directories are among
    /// them, it leaves in takeDocuments() what was found below them.
    End gatherDropped(const std::vector<std::wstring>& paths, const Progress& progress);

    /// The servers, in capitals, that would be asked about documents, though neither the files
    /// taken nor a drive leads there.
    std::vector<std::wstring> foreignServers() const;
    void leaveOutServers(const std::vector<std::wstring>& servers);

    /// Finds out which documents are there.
    End look();

    /// In order, each once; handed over.
    std::vector<std::wstring> takeDocuments() { return std::move(documents_); }
    const ImportRemains& remains() const { return remains_; }
    const std::wstring& problem() const { return problem_; }

 private:
    struct Document {
        std::wstring path;
        Presence presence;
        bool listed = false;
    };
    /// A line that names a document, by the number of that one.
    struct Line {
        int place;
        std::wstring text;  ///< as it was written
        std::size_t document;
    };

    template <class Action>
    End unlessRefused(const Action& action);
    bool takeDropped(const std::wstring& path, const Progress& progress);
    bool takeDirectory(const std::wstring& directory, const Progress& progress);
    bool takeFile(const std::wstring& file);
    /// Room for so many more lines.
    void reserve(std::size_t more);
    void add(int place, std::wstring text, std::wstring path, Presence presence);
    void leaveOut(int place, const std::wstring& text, Presence why);
    /// Looks at what is known no better than that.
    bool lookAtThose(Presence still);
    void settle();

    SearchServices services_;
    std::vector<Line> lines_;
    std::vector<Document> named_;
    std::unordered_map<std::wstring, std::size_t> numbers_;  ///< of those, by path in capitals
    std::vector<std::wstring> ownServers_;
    std::vector<std::wstring> documents_;
    ImportRemains remains_;
    std::wstring problem_;
    int place_ = 0;
};
