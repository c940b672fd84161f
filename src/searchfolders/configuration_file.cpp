#include "searchfolders/configuration_file.h"

#include "common/letter_case.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "ports/files.h"
#include "session/file_system_object.h"

namespace {

constexpr std::wstring_view kMarker = L"Configuration:";

bool isHeader(std::wstring_view line) {
    static const std::wstring marker = upperCase(kMarker);
    return upperCase(line).find(marker) != std::wstring::npos;
}

class Reader {
 public:
    explicit Reader(Configurations& configurations) : configurations_(configurations) {}

    void take(std::wstring_view line) {
        if (isHeader(line)) {
            // Cut off the front, wherever the marker stands.
            line.remove_prefix(kMarker.size());
            ++row_;
            entry_ = 0;
        } else {
            ++entry_;
        }
        configurations_.rows[row_][entry_] = trimmed(line);
    }

    void end() { configurations_.last = row_; }

 private:
    Configurations& configurations_;
    int row_ = 0;
    int entry_ = 0;
};

void appendConfiguration(std::wstring& text, const Configuration& configuration) {
    ((text += kMarker) += L"  ") += configuration[0] + L"\r\n";
    for (int j = 1; j <= kMostDirectories; ++j) {
        if (!configuration[j].empty()) text += L"   " + configuration[j] + L"\r\n";
    }
}

}  // namespace

void parseConfigurationFile(std::wstring_view text, Configurations& configurations,
                            const std::wstring& file) {
    Reader reader(configurations);
    int number = 0;
    try {
        while (!text.empty()) {
            ++number;
            reader.take(takeLine(text));
        }
    } catch (RuntimeError& error) {
        error.addPlace(number, file);
        throw;
    }
    reader.end();
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
    if (fileSystem.fileExists(file)) {
        parseConfigurationFile(files.readText(file), configurations, file);
    }
}
