#include "session/setting_values.h"

#include "common/numbers.h"
#include "platform/settings.h"

std::int16_t valueOf(Settings& settings, const NumberSetting& setting) {
    return wholeNumber(settings.read(setting.application, setting.section, setting.key,
                                     decimal(setting.otherwise)));
}

std::wstring valueOf(Settings& settings, const TextSetting& setting) {
    return settings.read(setting.application, setting.section, setting.key, setting.otherwise);
}

void setValue(Settings& settings, const NumberSetting& setting, std::int16_t value) {
    settings.write(setting.application, setting.section, setting.key, decimal(value));
}

void setValue(Settings& settings, const TextSetting& setting, const std::wstring& value) {
    settings.write(setting.application, setting.section, setting.key, value);
}
