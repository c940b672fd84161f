#include "searchfolders/configuration_file.h"

#include "app/module1.h"
#include "common/letter_case.h"
#include "common/text.h"
#include "platform/automation.h"
#include "platform/files.h"

namespace {

bool containsIgnoringCase(std::wstring_view line, std::wstring_view marker) {
    return upperCase(line).find(upperCase(marker)) != std::wstring::npos;
}

void appendConfiguration(std::wstring& text, const Configuration& configuration,
                         std::wstring_view marker) {
    ((text += marker) += L"  ") += configuration[0] + L"\r\n";
    for (long j = 1; j <= kMostDirectories; ++j) {
        if (!configuration[j].empty()) text += L"   " + configuration[j] + L"\r\n";
    }
}

}  // namespace

void parseConfFile(std::wstring_view text, std::wstring_view marker, Configurations& configs) {
    std::int16_t row = 0;
    long entry = 0;
    while (!text.empty()) {
        std::wstring_view line = takeLine(text);
        if (containsIgnoringCase(line, marker)) {
            // Cut off the front, wherever the marker stands.
            line.remove_prefix(marker.size());
            ++row;
            entry = 0;
        } else {
            ++entry;
        }
        configs.ConfRep[row][entry] = trimmed(line);
    }
    configs.NbConf = row;
}

std::wstring formatConfFile(const Configurations& configs, std::wstring_view marker) {
    std::wstring text;
    for (long i = 1; i <= kMostConfigurations; ++i) {
        const Configuration& configuration = configs.ConfRep[i];
        if (!configuration[0].empty()) appendConfiguration(text, configuration, marker);
    }
    return text;
}

void LireConfigs(Module1& module, Files& files) {
    Configurations& configs = module.configs;
    for (long i = 1; i <= kMostConfigurations; ++i) clearFrom(configs.ConfRep[i], 0);
    configs.NbConf = 0;
    if (!isTrue(callMethod(module.Fso, L"fileExists", {module.FichConfig}))) return;
    parseConfFile(files.readText(module.FichConfig), module.LibConfiguration, configs);
}

void EcrireConfigs(Module1& module, Files& files) {
    files.replaceText(module.FichConfig, formatConfFile(module.configs, module.LibConfiguration));
}
