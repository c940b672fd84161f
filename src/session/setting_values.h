#pragma once

#include <cstdint>
#include <string>

#include "session/settings_table.h"

class Settings;

// The values of the settings. Writing raises 75 when the store refuses.

/// Raises 13 for a stored text that is not a number, 6 for one outside 16 bits.
std::int16_t valueOf(Settings& settings, const NumberSetting& setting);
std::wstring valueOf(Settings& settings, const TextSetting& setting);
/// Kept as "0" or "1"; any other text is no mark.
bool valueOf(Settings& settings, const MarkSetting& setting);

void setValue(Settings& settings, const NumberSetting& setting, std::int16_t value);
void setValue(Settings& settings, const TextSetting& setting, const std::wstring& value);
void setValue(Settings& settings, const MarkSetting& setting, bool marked);
