#include "win32/files/directory_identity.h"

#include <algorithm>

namespace {

/// File systems without identities of this size give none or all bits (File System Control Codes,
/// 128-bit file ID).
bool isGiven(const FILE_ID_128& id) {
    const auto all = [&](BYTE value) {
        return std::ranges::all_of(id.Identifier, [&](BYTE one) { return one == value; });
    };
    return !all(0) && !all(0xFF);
}

void put(DWORD value, std::uint8_t* bytes) {
    for (int i = 0; i < 4; ++i) bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

}  // namespace

bool IdentityCalls::wide(HANDLE directory, FILE_ID_INFO& identity) {
    return GetFileInformationByHandleEx(directory, FileIdInfo, &identity, sizeof identity) != FALSE;
}

bool IdentityCalls::narrow(HANDLE directory, BY_HANDLE_FILE_INFORMATION& information) {
    return GetFileInformationByHandle(directory, &information) != FALSE;
}

bool identify(HANDLE directory, DirectoryId& id, IdentityCalls& calls) {
    FILE_ID_INFO identity{};
    if (calls.wide(directory, identity) && isGiven(identity.FileId)) {
        id.volume = identity.VolumeSerialNumber;
        std::ranges::copy(identity.FileId.Identifier, id.file.begin());
        return true;
    }
    BY_HANDLE_FILE_INFORMATION information{};
    if (!calls.narrow(directory, information)) return false;
    id = {.volume = information.dwVolumeSerialNumber, .file = {}};
    put(information.nFileIndexLow, id.file.data());
    put(information.nFileIndexHigh, id.file.data() + 4);
    return true;
}
