#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/bytes.h"
#include "worklist/work_list.h"

/// What a line of the list file has become since the file was written. A line in progress counts as
/// to do: where a pass goes on is found out again.
struct KeptLine {
    enum class State : std::uint8_t { ToDo, Done, Seen, Eliminated, AsInFile };

    State state = State::AsInFile;
    LineHistory history;

    bool operator==(const KeptLine&) const = default;
};

/// What a list has become since its file was written.
struct KeptState {
    std::vector<KeptLine> lines;          ///< for each line of the file
    std::optional<std::int32_t> opening;  ///< the line of the file whose document is being opened
};

// The format of the kept marks. A header says which list file they belong to. Each record after it
// tells what some lines of that file have become, and which document is being opened. All numbers
// are little-endian.
//
//   header  "Tarnwick reprise 2\n", length and hash of the list (8 bytes each), its number of lines
//           (4), a base for times (8), checksum (4)
//   record  length of its entries (4), the entries, checksum (4)
//
// A checksum is the CRC-32 of what precedes it. A record's is begun with the header's, so that a
// record of another list doesn't fit. A record that doesn't fit is ignored, with all that follow.
// The release before wrote "Tarnwick reprise 1\n", and no remarks; that is still read.

/// Writes kept marks.
class KeptMarksWriter {
 public:
    /// `baseTime`: the time of Clock from which the times in the records are counted.
    KeptMarksWriter(const ContentIdentity& list, std::size_t lineCount, std::int64_t baseTime);

    const std::string& header() const { return header_; }

    /// A record of what these lines of the file, in order, have become.
    std::string record(std::span<const std::size_t> changed, std::span<const KeptLine> lines,
                       std::optional<std::int32_t> opening) const;

 private:
    std::string header_;
    std::uint32_t seed_;
    std::int64_t baseTime_;
};

/// What a file of kept marks says about this list file. It may hold any bytes: nothing when it
/// doesn't belong to this list.
std::optional<KeptState> readKeptMarks(std::string_view record, const ContentIdentity& list,
                                       std::size_t lineCount);
