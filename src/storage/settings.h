#pragma once

#include <cstdint>
#include <string>

/// A setting of the user: where it is kept, and its value while it isn't set.
template <class Value>
struct Setting {
    const wchar_t* application;
    const wchar_t* section;
    const wchar_t* key;
    Value otherwise;
};

using NumberSetting = Setting<std::int16_t>;
using TextSetting = Setting<const wchar_t*>;
using SwitchSetting = Setting<bool>;

/// All settings. A new one takes a line here and the code that uses it.
namespace setting {

template <class Value>
constexpr Setting<Value> startUp(const wchar_t* key, Value otherwise) {
    return {L"tarnwick", L"startup", key, otherwise};
}

/// A setting of the configuration window.
template <class Value>
constexpr Setting<Value> searchFolders(const wchar_t* key, Value otherwise) {
    return {L"mervale", L"listerepert", key, otherwise};
}

constexpr SwitchSetting option(const wchar_t* key) { return {L"tarnwick", L"options", key, false}; }

// Where the windows are, in twips.
inline constexpr std::int16_t kUsualTop = 1416;
inline constexpr std::int16_t kUsualLeft = 2964;
inline constexpr auto kSelectionTop = startUp(L"toppos", kUsualTop);
inline constexpr auto kSelectionLeft = startUp(L"leftpos", kUsualLeft);
inline constexpr auto kExistingListTop = startUp(L"toppos2", kUsualTop);
inline constexpr auto kExistingListLeft = startUp(L"leftpos2", kUsualLeft);
inline constexpr auto kTrackingTop = startUp(L"toppos3", kUsualTop);
inline constexpr auto kTrackingLeft = startUp(L"leftpos3", kUsualLeft);
inline constexpr auto kConfigurationTop = searchFolders(L"toppos4", kUsualTop);
inline constexpr auto kConfigurationLeft = searchFolders(L"leftpos4", kUsualLeft);

// The same in pixels of the virtual screen, which are unambiguous on monitors of several
// resolutions and reach further: "TOP LEFT X Y", the first two as under the keys above.
inline constexpr auto kSelectionPixels = startUp(L"pixelpos", L"");
inline constexpr auto kExistingListPixels = startUp(L"pixelpos2", L"");
inline constexpr auto kTrackingPixels = startUp(L"pixelpos3", L"");
inline constexpr auto kConfigurationPixels = searchFolders(L"pixelpos4", L"");

// "0" or "1" for each of the tracking window's four options. For the store both spellings are the
// same.
inline constexpr auto kLoadingOptions = startUp(L"regcheck", L"1111");
inline constexpr auto kLoadingOptionsWritten = startUp(L"RegCheck", L"1111");

// The switches of the system menus.
inline constexpr auto kAlwaysVisible = option(L"toujoursvisible");
inline constexpr auto kHotKeys = option(L"touches");
inline constexpr auto kByKind = option(L"ordre");
inline constexpr auto kAllReleases = option(L"premierplan");
inline constexpr auto kPassRefused = option(L"passerrefus");
inline constexpr auto kKeepUnsaved = option(L"gardernonsauve");
inline constexpr auto kLeaveUsers = option(L"laisserouverts");
inline constexpr auto kWorkThere = option(L"references");

}  // namespace setting

class Settings;

// The values of the settings. Writing raises 75 when the store refuses.

/// Raises 13 for a stored text that is not a number, 6 for one outside 16 bits.
std::int16_t valueOf(Settings& settings, const NumberSetting& setting);
std::wstring valueOf(Settings& settings, const TextSetting& setting);
/// Kept as "0" or "1"; any other text is false.
bool valueOf(Settings& settings, const SwitchSetting& setting);

void setValue(Settings& settings, const NumberSetting& setting, std::int16_t value);
void setValue(Settings& settings, const TextSetting& setting, const std::wstring& value);
void setValue(Settings& settings, const SwitchSetting& setting, bool on);
