#include "driver/settings.h"

#include <windows.h>

#include <array>
#include <stdexcept>

#include "driver/text.h"

namespace driver {
namespace {

// The places where the program keeps settings.
constexpr std::array kSections{L"tarnwick\\startup", L"tarnwick\\options", L"mervale\\listerepert"};
constexpr std::array kApplications{L"tarnwick", L"mervale"};
constexpr DWORD kLongestValue = 1024;

std::wstring registryPath(std::wstring_view below) { return L"Software\\" + std::wstring(below); }

void write(const std::wstring& section, const std::wstring& key, const std::wstring& value) {
    const auto size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    if (RegSetKeyValueW(HKEY_CURRENT_USER, registryPath(section).c_str(), key.c_str(), REG_SZ,
                        value.c_str(), size) != ERROR_SUCCESS) {
        throw std::runtime_error("could not write a setting");
    }
}

std::optional<std::wstring> read(const std::wstring& section, const std::wstring& key) {
    wchar_t value[kLongestValue];
    DWORD size = sizeof value;
    if (RegGetValueW(HKEY_CURRENT_USER, registryPath(section).c_str(), key.c_str(), RRF_RT_REG_SZ,
                     nullptr, value, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    return std::wstring(value);
}

}  // namespace

Settings::Settings() : kept_(readAll()) { removeAll(); }

Settings::~Settings() {
    removeAll();
    for (const auto& [path, value] : kept_) {
        const size_t end = path.rfind(L'\\');
        write(path.substr(0, end), path.substr(end + 1), value);
    }
}

std::optional<std::string> Settings::get(const std::string& application, const std::string& section,
                                         const std::string& key) const {
    const auto value = read(wide(application + "\\" + section), wide(key));
    if (!value) return std::nullopt;
    return utf8(*value);
}

void Settings::set(const std::string& application, const std::string& section,
                   const std::string& key, const std::string& value) const {
    write(wide(application + "\\" + section), wide(key), wide(value));
}

std::string Settings::describe() const {
    std::string text;
    for (const auto& [path, value] : readAll()) text += utf8(path) + " = " + utf8(value) + "\n";
    return text;
}

Settings::Values Settings::readAll() {
    Values values;
    for (const std::wstring section : kSections) {
        HKEY key = nullptr;
        if (RegOpenKeyExW(HKEY_CURRENT_USER, registryPath(section).c_str(), 0, KEY_READ, &key)) {
            continue;
        }
        wchar_t name[kLongestValue];
        for (DWORD i = 0, length = kLongestValue;
             RegEnumValueW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) ==
             ERROR_SUCCESS;
             ++i, length = kLongestValue)
            values[section + L"\\" + name] = read(section, name).value_or(L"");
        RegCloseKey(key);
    }
    return values;
}

void Settings::removeAll() {
    for (const std::wstring application : kApplications) {
        RegDeleteTreeW(HKEY_CURRENT_USER, registryPath(application).c_str());
    }
}

}  // namespace driver
