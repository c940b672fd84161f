#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/bytes.h"
#include "worklist/work_list.h"

/// What a line of the list file has become since that was written. A line in progress counts as
/// to do: where a pass goes on is found anew.
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

// The record of kept marks, as bytes. A header says which list file it belongs to; then each record
// tells, for some lines of that file, what they have become, and which document is being opened.
// All numbers are little-endian.
//
//   header  "Tarnwick reprise 2\n", length and hash of the list (8 bytes each), its number of lines
//           (4), a base for times (8), checksum (4)
//   record  length of its entries (4), the entries, checksum (4)
//
// Checksums are CRC-32 over what stands before them, begun with the header's for a record: one of
// another list's record is no record here. What doesn't fit is left out, with all that follows.
// The release before wrote "Tarnwick reprise 1\n", and no remarks; that is still read.

/// Writes a record of kept marks.
class KeptMarksWriter {
 public:
    /// `baseTime`: from which the times in the record are counted, as Clock has it.
    KeptMarksWriter(const ContentIdentity& list, std::size_t lineCount, std::int64_t baseTime);

    const std::string& header() const { return header_; }

    /// A record of these lines of the file, in their order, and what they have become.
    std::string record(std::span<const std::size_t> changed, std::span<const KeptLine> lines,
                       std::optional<std::int32_t> opening) const;

 private:
    std::string header_;
    std::uint32_t seed_;
    std::int64_t baseTime_;
};

/// What a record, of any bytes, keeps of this list file; nothing when it isn't one of it.
std::optional<KeptState> readKeptMarks(std::string_view record, const ContentIdentity& list,
                                       std::size_t lineCount);
