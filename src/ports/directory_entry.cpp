#include "ports/directory_entry.h"

namespace {

bool hasAll(std::uint32_t attributes, std::uint32_t wanted) {
    return (attributes & wanted) == wanted;
}

/// Documents lie in hidden directories, too; only those that the Explorer itself keeps from its
/// users hold none. Beside an open document stands a hidden lock file of its kind.
bool isLeftOut(std::uint32_t attributes) {
    return hasAll(attributes, attribute::kDirectory)
               ? hasAll(attributes, attribute::kHidden | attribute::kSystem)
               : hasAll(attributes, attribute::kHidden);
}

/// Whether the name stands for another one (the IsReparseTagNameSurrogate macro). Directories kept
/// in a cloud, deduplicated or compressed ones have a tag, too, but are what they seem to be.
bool standsForAnother(std::uint32_t attributes, std::uint32_t reparseTag) {
    constexpr std::uint32_t kNameSurrogate = 0x20000000;
    return hasAll(attributes, attribute::kReparsePoint) && hasAll(reparseTag, kNameSurrogate);
}

}  // namespace

DirectoryEntry directoryEntry(std::wstring_view name, std::uint32_t attributes,
                              std::uint32_t reparseTag) {
    return {.name = name,
            .isDirectory = hasAll(attributes, attribute::kDirectory),
            .isLeftOut = isLeftOut(attributes),
            .isLink = standsForAnother(attributes, reparseTag)};
}
