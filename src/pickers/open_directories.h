#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

/// The directories open on the way down a tree, so that a walk that follows junctions and
/// symbolic links has an end.
class OpenDirectories {
 public:
    explicit OpenDirectories(Files& files) : files_(files) {}

    void enter(const std::wstring& directory) { way_.push_back({directory, std::nullopt}); }
    void leave() { way_.pop_back(); }

    /// Whether a link leads to one of them, by whatever path. Raises 70 or 76 when it leads
    /// nowhere.
    bool leadsBack(const std::wstring& link);

 private:
    struct Open {
        std::wstring path;
        std::optional<DirectoryId> id;  ///< asked for only when a link is met
    };

    Files& files_;
    std::vector<Open> way_;
};
