#include "session/program_files.h"

#include <algorithm>

#include "common/runtime_error.h"
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

FileSystemObject::FileSystemObject(Automation& automation)
    : object_(automation.create(L"Scripting.FileSystemObject")) {}

bool FileSystemObject::fileExists(const std::wstring& path) {
    try {
        return isTrue(callMethod(object_, L"fileExists", {path}));
    } catch (RuntimeError& error) {
        error.addLine(L"Fichier : " + path);
        throw;
    }
}
