#include "session/program_files.h"

#include <algorithm>

#include "common/text.h"
#include "worklist/mark_keeper.h"

bool ProgramFiles::owns(const std::wstring& path) const {
    const std::wstring own[] = {list,
                                previousList(),
                                othersList(),
                                configurations,
                                othersConfigurations(),
                                holdFileOf(list),
                                keptMarksFile(list),
                                keptMarksFile(previousList())};
    return std::ranges::any_of(
        own, [&](const std::wstring& file) { return equalIgnoringCase(file, path); });
}
