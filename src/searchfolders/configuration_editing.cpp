#include "searchfolders/configuration_editing.h"

#include "common/numbers.h"
#include "common/text.h"

namespace {

bool beginsIgnoringCase(std::wstring_view text, std::wstring_view start) {
    return equalIgnoringCase(text.substr(0, start.size()), start);
}

int lastFollower(const Configuration& edited, int count, int entry) {
    int last = entry;
    while (last < count && beginsIgnoringCase(edited[last + 1], edited[entry])) ++last;
    return last;
}

/// Row 0 takes part: "En Cours" is found by its name too.
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
