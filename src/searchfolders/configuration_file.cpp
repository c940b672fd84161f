#include "searchfolders/configuration_file.h"

#include "common/letter_case.h"
#include "common/text.h"
#include "platform/file_system_object.h"
#include "platform/files.h"

namespace {

constexpr std::wstring_view kMarker = L"Configuration:";

bool isHeader(std::wstring_view line) {
    static const std::wstring marker = upperCase(kMarker);
    return upperCase(line).find(marker) != std::wstring::npos;
}

void appendConfiguration(std::wstring& text, const Configuration& configuration) {
    ((text += kMarker) += L"  ") += configuration[0] + L"\r\n";
    for (int j = 1; j <= kMostDirectories; ++j) {
        if (!configuration[j].empty()) text += L"   " + configuration[j] + L"\r\n";
    }
}

}  // namespace

void parseConfigurationFile(std::wstring_view text, Configurations& configurations) {
    int row = 0;
    int entry = 0;
    while (!text.empty()) {
        std::wstring_view line = takeLine(text);
        if (isHeader(line)) {
            // Cut off the front, wherever the marker stands.
            line.remove_prefix(kMarker.size());
            ++row;
            entry = 0;
        } else {
            ++entry;
        }
        configurations.rows[row][entry] = trimmed(line);
    }
    configurations.last = row;
}

std::wstring formatConfigurationFile(const Configurations& configurations) {
    std::wstring text;
    for (int i = 1; i <= kMostConfigurations; ++i) {
        const Configuration& configuration = configurations.rows[i];
        if (!configuration[0].empty()) appendConfiguration(text, configuration);
    }
    return text;
}

void readConfigurations(Configurations& configurations, const std::wstring& file,
                        FileSystemObject& fileSystem, Files& files) {
    for (int i = 1; i <= kMostConfigurations; ++i) clearFrom(configurations.rows[i], 0);
    configurations.last = 0;
    if (fileSystem.fileExists(file)) parseConfigurationFile(files.readText(file), configurations);
}
