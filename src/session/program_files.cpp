#include "session/program_files.h"

#include <algorithm>

#include "common/text.h"
#include "worklist/mark_keeper.h"

bool ProgramFiles::owns(const std::wstring& path) const {
    const std::wstring own[] = {list, configurations, previousList(), holdFile(),
                                keptMarksFile(list)};
    return std::ranges::any_of(
        own, [&](const std::wstring& file) { return equalIgnoringCase(file, path); });
}
