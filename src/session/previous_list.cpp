#include "session/previous_list.h"

#include "ports/files.h"
#include "session/program_files.h"

void keepPreviousList(Files& files, const ProgramFiles& programFiles) {
    const std::wstring& list = programFiles.list;
    if (files.kindOf(list) != PathKind::File || files.read(list).empty()) return;
    files.keepCopy(list, programFiles.previousList());
}
