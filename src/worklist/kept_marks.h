#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "worklist/kept_state.h"

// The record of kept marks, as bytes. A header says which list file it belongs to; then each record
// tells, for some lines of that file, what they have become, and which document is being opened.
// All numbers are little-endian.
//
//   header  "Tarnwick reprise 1\n", length and hash of the list (8 bytes each), its number of lines
//           (4), a base for times (8), checksum (4)
//   record  length of its entries (4), the entries, checksum (4)
//
// Checksums are CRC-32 over what stands before them, begun with the header's for a record: one of
// another list's record is no record here. What doesn't fit is left out, with all that follows.

/// Tells one list file from another, by its bytes.
class ListIdentity {
 public:
    ListIdentity() = default;
    explicit ListIdentity(std::string_view bytes) { add(bytes); }

    /// The file's next bytes.
    void add(std::string_view bytes);

    std::uint64_t length() const { return length_; }
    std::uint64_t hash() const { return hash_; }

 private:
    std::uint64_t length_ = 0;
    std::uint64_t hash_ = 0xCBF29CE484222325;  ///< FNV-1a
};

/// Writes a record of kept marks.
class KeptMarksWriter {
 public:
    /// `baseTime`: from which the times in the record are counted, as Clock has it.
    KeptMarksWriter(const ListIdentity& list, std::size_t lineCount, std::int64_t baseTime);

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
std::optional<KeptState> readKeptMarks(std::string_view record, const ListIdentity& list,
                                       std::size_t lineCount);
