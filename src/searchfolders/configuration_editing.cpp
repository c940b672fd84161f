#include "searchfolders/configuration_editing.h"

#include "common/numbers.h"
#include "common/text.h"

namespace {

bool beginsIgnoringCase(std::wstring_view text, std::wstring_view start) {
    return equalIgnoringCase(text.substr(0, start.size()), start);
}

long lastFollower(const Configuration& edited, long count, long entry) {
    long last = entry;
    while (last < count && beginsIgnoringCase(edited[last + 1], edited[entry])) ++last;
    return last;
}

/// Row 0 takes part: "En Cours" is found by its name too.
long rowFor(const Configurations& configs, std::wstring_view name) {
    long row = 0;
    while (!configs.ConfRep[row][0].empty() && !equalIgnoringCase(configs.ConfRep[row][0], name)) {
        ++row;
    }
    return row;
}

}  // namespace

bool addDirectory(Configuration& edited, long count, const std::wstring& path) {
    for (long j = 1; j <= count; ++j) {
        if (edited[j] == path) return false;
    }
    edited[count + 1] = path;
    return true;
}

long removeDirectories(Configuration& edited, long count, const std::function<bool(int)>& selected,
                       Removal removal) {
    Configuration RepTemp;
    long kept = 0;
    for (long j = 1; j <= count; ++j) {
        if (!selected(static_cast<int>(j - 1))) {
            RepTemp[++kept] = edited[j];
        } else if (removal == Removal::WithFollowers) {
            j = lastFollower(edited, count, j);
        }
    }
    copyDirectories(RepTemp, edited);
    return kept;
}

void storeEdited(Configurations& configs, std::wstring& name) {
    const std::wstring& sought = configs.NomConfEdit.empty() ? name : configs.NomConfEdit;
    Configuration& stored = configs.ConfRep[rowFor(configs, sought)];
    if (stored[0].empty()) ++configs.NbConf;
    if (trimmed(name).empty()) name = L"Defaut_" + decimal(configs.NbConf);
    stored[0] = name;
    copyDirectories(configs.RepEdit, stored);
}

void destroySelected(Configurations& configs) {
    if (configs.ConfSel == 0) return;
    for (long i = configs.ConfSel; i <= configs.NbConf; ++i) {
        const Configuration& below = configs.ConfRep[i + 1];
        const long end = firstEmpty(below, 0);
        for (long j = 0; j < end; ++j) configs.ConfRep[i][j] = below[j];
    }
    configs.ConfRep[configs.NbConf][0].clear();
    if (configs.NbConf > 0) --configs.NbConf;
}
