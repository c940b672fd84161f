#include "win32/process/registry_settings.h"

#include <windows.h>

#include "common/runtime_error.h"

namespace {

std::wstring subkey(const std::wstring& application, const std::wstring& section) {
    return L"Software\\" + application + L"\\" + section;
}

}  // namespace

std::wstring RegistrySettings::read(const std::wstring& application, const std::wstring& section,
                                    const std::wstring& key, const std::wstring& otherwise) {
    const std::wstring path = subkey(application, section);
    std::wstring value;
    DWORD bytes = 0;
    LSTATUS status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ,
                                  nullptr, nullptr, &bytes);
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA) {
        value.resize(bytes / sizeof(wchar_t) + 1);
        bytes = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        status = RegGetValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), RRF_RT_REG_SZ, nullptr,
                              value.data(), &bytes);
        if (status == ERROR_SUCCESS) return value.substr(0, value.find(L'\0'));
    }
    return otherwise;
}

void RegistrySettings::write(const std::wstring& application, const std::wstring& section,
                             const std::wstring& key, const std::wstring& value) {
    const std::wstring path = subkey(application, section);
    const LSTATUS status =
        RegSetKeyValueW(HKEY_CURRENT_USER, path.c_str(), key.c_str(), REG_SZ, value.c_str(),
                        static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    if (status != ERROR_SUCCESS) throw errors::fileAccess(L"HKEY_CURRENT_USER\\" + path);
}
