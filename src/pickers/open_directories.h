#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "ports/files.h"

/// The directories open on the way down a tree, so that a walk that follows junctions and
/// symbolic links has an end.
class OpenDirectories {
 public:
    using Identify = std::function<DirectoryId(const std::wstring& directory)>;

    explicit OpenDirectories(Identify identify) : identify_(std::move(identify)) {}

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

    Identify identify_;
    std::vector<Open> way_;
};
