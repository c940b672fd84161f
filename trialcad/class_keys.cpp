#include "class_keys.h"

#include <objbase.h>
#include <string>

namespace {

constexpr wchar_t kProgId[] = L"SldWorks.Application";
constexpr wchar_t kProgIdKey[] = L"Software\\Classes\\SldWorks.Application";
constexpr wchar_t kOwnClassKey[] =
    L"Software\\Classes\\CLSID\\{6E1B5B0A-3C0F-4C58-9C57-2A7D8F1E40B3}";
constexpr CLSID kOwnClass = {
    0x6e1b5b0a, 0x3c0f, 0x4c58, {0x9c, 0x57, 0x2a, 0x7d, 0x8f, 0x1e, 0x40, 0xb3}};

bool writeDefault(HKEY root, const std::wstring& key, const std::wstring& text) {
    const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    return RegSetKeyValueW(root, key.c_str(), nullptr, REG_SZ, text.c_str(), size) == ERROR_SUCCESS;
}

void removeKeys(HKEY root) {
    RegDeleteTreeW(root, kProgIdKey);
    RegDeleteTreeW(root, kOwnClassKey);
}

bool writeKeys(HKEY root) {
    wchar_t classId[40];
    StringFromGUID2(kOwnClass, classId, 40);
    const bool written = writeDefault(root, kProgIdKey, L"Session d'essai") &&
                         writeDefault(root, std::wstring(kProgIdKey) + L"\\CLSID", classId) &&
                         writeDefault(root, kOwnClassKey, L"Session d'essai") &&
                         writeDefault(root, std::wstring(kOwnClassKey) + L"\\ProgID", kProgId);
    if (!written) removeKeys(root);
    return written;
}

/// The class registered under that root's ProgID is the one of our own.
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
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER})
        if (isOwn(root)) removeKeys(root);
}
