#include "pickers/tree_walk.h"

#include <algorithm>
#include <utility>

#include "pickers/paths.h"
#include "pickers/read_ahead.h"

namespace {

/// The directories open on the way down a tree. Thanks to them a walk that follows junctions and
/// symbolic links ends.
class OpenDirectories {
 public:
    using Identify = std::function<DirectoryId(const std::wstring& directory)>;

    explicit OpenDirectories(Identify identify) : identify_(std::move(identify)) {}

    void enter(const std::wstring& directory) { way_.push_back({directory, std::nullopt}); }
    void leave() { way_.pop_back(); }

    /// Whether a link leads to one of them, by whatever path. Raises 70 or 76 for a broken link.
    bool leadsBack(const std::wstring& link) {
        const DirectoryId target = identify_(link);
        return std::ranges::any_of(way_, [&](Open& open) {
            if (!open.id) open.id = identify_(open.path);
            return *open.id == target;
        });
    }

 private:
    struct Open {
        std::wstring path;
        std::optional<DirectoryId> id;  ///< found out when a link is met
    };

    Identify identify_;
    std::vector<Open> way_;
};

class Walk {
 public:
    Walk(ReadAhead& ahead, const DirectoryVisitor& visit) : ahead_(ahead), visit_(visit) {}

    void visit(TreeDirectory& directory) {
        ahead_.meet(directory);
        visit_(directory.path, directory.contents.files);
        directory.contents.files = {};
    }

    void run() {
        enter(ahead_.root());
        while (!way_.empty()) {
            Step& step = way_.back();
            if (step.next == step.directory.contents.subdirectories.size()) {
                leave();
            } else {
                goDown(step.directory, step.next++);
            }
        }
    }

 private:
    /// A directory on the way down, and which of its sub-directories comes next.
    struct Step {
        TreeDirectory& directory;
        std::size_t next;
    };

    void enter(TreeDirectory& directory) {
        visit(directory);
        open_.enter(directory.path);
        way_.push_back({directory, 0});
    }

    void goDown(TreeDirectory& directory, std::size_t index) {
        const Subdirectory& below = directory.contents.subdirectories[index];
        if (below.isLink && open_.leadsBack(childPath(directory.path, below.name))) return;
        enter(ahead_.subdirectory(directory, index));
    }

    void leave() {
        open_.leave();
        ahead_.leave(way_.back().directory);
        way_.pop_back();
    }

    ReadAhead& ahead_;
    const DirectoryVisitor& visit_;
    OpenDirectories open_{[this](const std::wstring& path) { return ahead_.identify(path); }};
    std::vector<Step> way_;
};

}  // namespace

WalkEnd walkTree(const SearchServices& services, const std::wstring& directory,
                 bool withSubdirectories, const FileFilter& wanted, const DirectoryVisitor& visit) {
    try {
        ReadAhead ahead(services, wanted, directory, withSubdirectories);
        Walk walk(ahead, visit);
        withSubdirectories ? walk.run() : walk.visit(ahead.root());
        return WalkEnd::Complete;
    } catch (const ReadAhead::Interrupted&) {
        return WalkEnd::Interrupted;
    }
}

std::optional<std::vector<Subdirectory>> readSubdirectories(const SearchServices& services,
                                                            const std::wstring& directory) {
    try {
        ReadAhead ahead(services, noFile, directory, false);
        ahead.meet(ahead.root());
        return std::move(ahead.root().contents.subdirectories);
    } catch (const ReadAhead::Interrupted&) {
        return std::nullopt;
    }
}
