#include "class_keys.h"

#include <objbase.h>
#include <string>

#include "win32/process/handles.h"

namespace {

using UniqueKey = Unique<HKEY, RegCloseKey>;

constexpr wchar_t kProgId[] = L"SldWorks.Application";
constexpr wchar_t kProgIdKey[] = L"Software\\Classes\\SldWorks.Application";
constexpr wchar_t kClassesKey[] = L"Software\\Classes\\CLSID";
// The uninstaller knows this class, too.
constexpr wchar_t kOwnClassKey[] =
    L"Software\\Classes\\CLSID\\{6E1B5B0A-3C0F-4C58-9C57-2A7D8F1E40B3}";
constexpr CLSID kOwnClass = {
    0x6e1b5b0a, 0x3c0f, 0x4c58, {0x9c, 0x57, 0x2a, 0x7d, 0x8f, 0x1e, 0x40, 0xb3}};

/// Opens or makes a key below this root; null when that is not allowed.
UniqueKey openKey(HKEY root, const wchar_t* key, DWORD lifetime) {
    HKEY opened = nullptr;
    RegCreateKeyExW(root, key, 0, nullptr, lifetime, KEY_SET_VALUE, nullptr, &opened, nullptr);
    return UniqueKey(opened);
}

/// Writes a key's default text. The key vanishes when its part of the registry is unloaded: the
/// user's at log-off, even if the session could not remove it.
bool writeDefault(HKEY root, const std::wstring& key, const std::wstring& text) {
    const UniqueKey opened = openKey(root, key.c_str(), REG_OPTION_VOLATILE);
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return opened &&
           RegSetValueExW(opened.get(), nullptr, 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(text.c_str()), size) == ERROR_SUCCESS;
}

/// Makes the key of all classes a lasting one: other programs' classes could not be kept below a
/// key that vanishes.
void keepKeyOfAllClasses(HKEY root) { openKey(root, kClassesKey, REG_OPTION_NON_VOLATILE); }

void removeKeys(HKEY root) {
    RegDeleteTreeW(root, kProgIdKey);
    RegDeleteTreeW(root, kOwnClassKey);
}

bool writeKeys(HKEY root) {
    wchar_t classId[40];
    StringFromGUID2(kOwnClass, classId, 40);
    keepKeyOfAllClasses(root);
    const bool written = writeDefault(root, kProgIdKey, L"Session d'essai") &&
                         writeDefault(root, std::wstring(kProgIdKey) + L"\\CLSID", classId) &&
                         writeDefault(root, kOwnClassKey, L"Session d'essai") &&
                         writeDefault(root, std::wstring(kOwnClassKey) + L"\\ProgID", kProgId);
    if (!written) removeKeys(root);
    return written;
}

/// Whether the class registered for the ProgID below this root is our own.
bool isOwn(HKEY root) {
    wchar_t text[40];
    DWORD size = sizeof text;
    CLSID classId;
    return RegGetValueW(root, (std::wstring(kProgIdKey) + L"\\CLSID").c_str(), nullptr,
                        RRF_RT_REG_SZ, nullptr, text, &size) == ERROR_SUCCESS &&
           SUCCEEDED(CLSIDFromString(text, &classId)) && classId == kOwnClass;
}

}  // namespace

bool provideClassId(CLSID& classId) {
    if (SUCCEEDED(CLSIDFromProgID(kProgId, &classId))) return true;
    classId = kOwnClass;
    // The machine's classes come first because not every system reads the user's.
    return writeKeys(HKEY_LOCAL_MACHINE) || writeKeys(HKEY_CURRENT_USER);
}

void removeOwnClassId() {
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        if (isOwn(root)) removeKeys(root);
    }
}
