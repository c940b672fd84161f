#pragma once

#include <cstdint>
#include <string_view>

/// One name in a directory, valid only while it is being visited.
struct DirectoryEntry {
    std::wstring_view name;
    bool isDirectory;
    bool isLeftOut;  ///< neither searched nor shown
    bool isLink;     ///< a junction or symbolic link: it may lead back up
};

/// Bits of a name's attributes, as Windows numbers them (File Attribute Constants).
namespace attribute {
inline constexpr std::uint32_t kHidden = 0x2;
inline constexpr std::uint32_t kSystem = 0x4;
inline constexpr std::uint32_t kDirectory = 0x10;
inline constexpr std::uint32_t kReparsePoint = 0x400;
}  // namespace attribute

/// The tag of a junction or mounted folder (Reparse Point Tags).
inline constexpr std::uint32_t kMountPointTag = 0xA0000003;

/// What a directory's listing says of a name. The reparse tag counts only when the attributes say
/// that there is one.
DirectoryEntry directoryEntry(std::wstring_view name, std::uint32_t attributes,
                              std::uint32_t reparseTag);
