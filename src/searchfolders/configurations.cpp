#include "searchfolders/configurations.h"

#include <utility>

#include "common/encoding.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "ports/files.h"
#include "storage/program_files.h"

void clearFrom(Configuration& configuration, int first) {
    configuration.clear(static_cast<std::size_t>(first));
}

int firstEmpty(const Configuration& configuration, int first) {
    int i = first;
    while (i <= kMostDirectories && !configuration[i].empty()) ++i;
    return i;
}

void copyDirectories(const Configuration& from, Configuration& to) {
    const int count = directoryCount(from);
    for (int i = 1; i <= count; ++i) to[i] = from[i];
    clearFrom(to, count + 1);
}

void splitFolders(std::wstring_view folders, Configuration& configuration) {
    if (folders.empty()) return;
    int j = 1;
    std::size_t end = 0;
    while ((end = folders.find(L';')) != std::wstring_view::npos) {
        configuration[j++] = folders.substr(0, end);
        folders.remove_prefix(end + 1);
    }
    configuration[j] = folders;
}

std::wstring joinFolders(const Configuration& configuration) {
    std::wstring folders = configuration[1];
    for (int j = 2; !configuration[j].empty(); ++j) folders += L';' + configuration[j];
    return folders;
}

namespace {

bool beginsIgnoringCase(std::wstring_view text, std::wstring_view start) {
    return equalIgnoringCase(text.substr(0, start.size()), start);
}

int lastFollower(const Configuration& edited, int count, int entry) {
    int last = entry;
    while (last < count && beginsIgnoringCase(edited[last + 1], edited[entry])) ++last;
    return last;
}

/// Row 0 is included, so that "En Cours" is found by its name, too.
int rowFor(const Configurations& configs, std::wstring_view name) {
    int row = 0;
    while (!configs.rows[row][0].empty() && !equalIgnoringCase(configs.rows[row][0], name)) {
        ++row;
    }
    return row;
}

}  // namespace

bool addDirectory(Configuration& edited, int count, const std::wstring& path) {
    for (int j = 1; j <= count; ++j) {
        if (edited[j] == path) return false;
    }
    edited[count + 1] = path;
    return true;
}

bool canBeSearchFolder(std::wstring_view path) {
    return path.find(L';') == std::wstring_view::npos;
}

void TreeAddition::add(const std::wstring& path) {
    if (!canBeSearchFolder(path)) {
        leftOut.push_back(path);
    } else if (addDirectory(edited, count, path)) {
        ++count;
    }
}

int removeDirectories(Configuration& edited, int count, const std::function<bool(int)>& selected,
                      Removal removal) {
    Configuration left;
    int kept = 0;
    for (int j = 1; j <= count; ++j) {
        if (!selected(static_cast<int>(j - 1))) {
            left[++kept] = edited[j];
        } else if (removal == Removal::WithFollowers) {
            j = lastFollower(edited, count, j);
        }
    }
    copyDirectories(left, edited);
    return kept;
}

void storeEdited(Configurations& configs, std::wstring& name) {
    const std::wstring& sought = configs.renamed.empty() ? name : configs.renamed;
    Configuration& stored = configs.rows[rowFor(configs, sought)];
    if (stored[0].empty()) ++configs.last;
    if (trimmed(name).empty()) name = L"Defaut_" + decimal(configs.last);
    stored[0] = name;
    copyDirectories(configs.edited, stored);
}

void destroySelected(Configurations& configs) {
    if (configs.selected == 0) return;
    for (int i = configs.selected; i <= configs.last; ++i) {
        const Configuration& below = configs.rows[i + 1];
        const int end = firstEmpty(below, 0);
        for (int j = 0; j < end; ++j) configs.rows[i][j] = below[j];
    }
    configs.rows[configs.last][0].clear();
    if (configs.last > 0) --configs.last;
}

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
            // As much is cut off the front, wherever the marker is.
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

std::optional<ContentIdentity> readConfigurations(Configurations& configurations,
                                                  const std::wstring& file,
                                                  FileSystemObject& fileSystem, Files& files) {
    for (int i = 1; i <= kMostConfigurations; ++i) clearFrom(configurations.rows[i], 0);
    configurations.last = 0;
    if (!fileSystem.fileExists(file)) return std::nullopt;
    std::string bytes = files.readBytes(file);
    const ContentIdentity identity(bytes);
    parseConfigurationFile(wideText(textInUtf8(std::move(bytes))), configurations, file);
    return identity;
}
