#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "worklist/kept_state.h"

/// What the lines of a list file have become, kept up with the list. Looks only at the lines that
/// may have changed, if they are few.
class KeptLines {
 public:
    KeptLines() = default;
    /// A list file has just these lines.
    explicit KeptLines(const WorkList& list);

    /// Takes over what has changed; gives the lines of the file that are no longer what they were
    /// before, in their order.
    std::vector<std::size_t> follow(const WorkList& list);

    std::span<const KeptLine> all() const { return lines_; }
    bool allAsInFile() const { return otherwise_ == 0; }
    /// The lines of the file that something is to be told of.
    std::vector<std::size_t> toTell() const;

 private:
    std::vector<std::size_t> followAll(const WorkList& list);
    std::vector<std::size_t> followSome(const WorkList& list, std::span<const int> lines);
    bool take(std::size_t fileLine, const KeptLine& now);

    std::vector<std::string_view> codes_;  ///< of the lines of the list file
    std::vector<KeptLine> lines_;
    int otherwise_ = 0;  ///< lines that are not as in the file
    int lineCount_ = 0;  ///< of the list, when it was followed last
    std::uint64_t reached_ = 0;
};
