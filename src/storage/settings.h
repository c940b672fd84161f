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

namespace place {
inline constexpr wchar_t kProgram[] = L"tarnwick";
inline constexpr wchar_t kStartUp[] = L"startup";
inline constexpr wchar_t kOptions[] = L"options";
// The configuration window keeps its place under other names.
inline constexpr wchar_t kSearchFolders[] = L"mervale";
inline constexpr wchar_t kDirectoryLists[] = L"listerepert";
}  // namespace place

// Where the windows stand, in twips.
inline constexpr std::int16_t kUsualTop = 1416;
inline constexpr std::int16_t kUsualLeft = 2964;
inline constexpr NumberSetting kSelectionTop{place::kProgram, place::kStartUp, L"toppos",
                                             kUsualTop};
inline constexpr NumberSetting kSelectionLeft{place::kProgram, place::kStartUp, L"leftpos",
                                              kUsualLeft};
inline constexpr NumberSetting kExistingListTop{place::kProgram, place::kStartUp, L"toppos2",
                                                kUsualTop};
inline constexpr NumberSetting kExistingListLeft{place::kProgram, place::kStartUp, L"leftpos2",
                                                 kUsualLeft};
inline constexpr NumberSetting kTrackingTop{place::kProgram, place::kStartUp, L"toppos3",
                                            kUsualTop};
inline constexpr NumberSetting kTrackingLeft{place::kProgram, place::kStartUp, L"leftpos3",
                                             kUsualLeft};
inline constexpr NumberSetting kConfigurationTop{place::kSearchFolders, place::kDirectoryLists,
                                                 L"toppos4", kUsualTop};
inline constexpr NumberSetting kConfigurationLeft{place::kSearchFolders, place::kDirectoryLists,
                                                  L"leftpos4", kUsualLeft};

// The same in pixels of the virtual screen, which are unambiguous on monitors of several
// resolutions and reach further: "TOP LEFT X Y", the first two as under the keys above.
inline constexpr TextSetting kSelectionPixels{place::kProgram, place::kStartUp, L"pixelpos", L""};
inline constexpr TextSetting kExistingListPixels{place::kProgram, place::kStartUp, L"pixelpos2",
                                                 L""};
inline constexpr TextSetting kTrackingPixels{place::kProgram, place::kStartUp, L"pixelpos3", L""};
inline constexpr TextSetting kConfigurationPixels{place::kSearchFolders, place::kDirectoryLists,
                                                  L"pixelpos4", L""};

// "0" or "1" for each of the tracking window's four options. For the store both spellings are the
// same.
inline constexpr TextSetting kLoadingOptions{place::kProgram, place::kStartUp, L"regcheck",
                                             L"1111"};
inline constexpr TextSetting kLoadingOptionsWritten{place::kProgram, place::kStartUp, L"RegCheck",
                                                    L"1111"};

// The switches of the system menus.
inline constexpr SwitchSetting kAlwaysVisible{place::kProgram, place::kOptions, L"toujoursvisible",
                                              false};
inline constexpr SwitchSetting kHotKeys{place::kProgram, place::kOptions, L"touches", false};
inline constexpr SwitchSetting kByKind{place::kProgram, place::kOptions, L"ordre", false};
inline constexpr SwitchSetting kAllReleases{place::kProgram, place::kOptions, L"premierplan",
                                            false};
inline constexpr SwitchSetting kPassRefused{place::kProgram, place::kOptions, L"passerrefus",
                                            false};
inline constexpr SwitchSetting kKeepUnsaved{place::kProgram, place::kOptions, L"gardernonsauve",
                                            false};
inline constexpr SwitchSetting kLeaveUsers{place::kProgram, place::kOptions, L"laisserouverts",
                                           false};
inline constexpr SwitchSetting kWorkThere{place::kProgram, place::kOptions, L"references", false};

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
