#include "storage/settings.h"

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/machine.h"

namespace {

const wchar_t* switchText(bool on) { return on ? L"1" : L"0"; }

}  // namespace

std::int16_t valueOf(Settings& settings, const NumberSetting& setting) {
    const std::wstring text = settings.read(setting.application, setting.section, setting.key,
                                            decimal(setting.otherwise));
    try {
        return wholeNumber(text);
    } catch (RuntimeError& error) {
        error.addLine(std::wstring(L"Réglage : HKEY_CURRENT_USER\\Software\\") +
                      setting.application + L"\\" + setting.section + L"\\" + setting.key);
        throw;
    }
}

std::wstring valueOf(Settings& settings, const TextSetting& setting) {
    return settings.read(setting.application, setting.section, setting.key, setting.otherwise);
}

bool valueOf(Settings& settings, const SwitchSetting& setting) {
    return settings.read(setting.application, setting.section, setting.key,
                         switchText(setting.otherwise)) == switchText(true);
}

void setValue(Settings& settings, const NumberSetting& setting, std::int16_t value) {
    settings.write(setting.application, setting.section, setting.key, decimal(value));
}

void setValue(Settings& settings, const TextSetting& setting, const std::wstring& value) {
    settings.write(setting.application, setting.section, setting.key, value);
}

void setValue(Settings& settings, const SwitchSetting& setting, bool on) {
    settings.write(setting.application, setting.section, setting.key, switchText(on));
}
