// The start-up sequence. Its order can be observed: by the CAD application, and by what is shown
// already when a step fails.

#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "common/runtime_error.h"
#include "common/text.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "storage/program_files.h"

namespace {

/// Whether a full path can be that of a list: its name ends with ".lst" and is one that Windows
/// allows (Naming Files, Paths, and Namespaces; a colon would name a stream within a file).
bool namesAList(const std::wstring& path) {
    constexpr std::wstring_view kExtension = L".lst";
    const std::size_t separator = path.rfind(L'\\');
    if (separator == std::wstring::npos) return false;
    const std::wstring_view name = std::wstring_view(path).substr(separator + 1);
    return name.size() >= kExtension.size() &&
           equalIgnoringCase(name.substr(name.size() - kExtension.size()), kExtension) &&
           name.find_first_of(L":*?\"<>|") == std::wstring_view::npos;
}

RuntimeError tooMany(const std::vector<std::wstring>& files) {
    RuntimeError error{5,
                       L"Tarnwick ne travaille que sur un fichier de liste à la fois (un nom qui "
                       L"contient des blancs se met entre guillemets) :"};
    constexpr std::size_t kMostShown = 10;
    for (std::size_t i = 0; i < files.size() && i < kMostShown; ++i) error.addLine(files[i]);
    if (files.size() > kMostShown) error.addLine(L"...");
    return error;
}

/// The list file to work on: the one named on the command line, as when a list is dropped on the
/// program's icon, or the program's own. Raises 5 for more than one name, and for any file that is
/// no list.
std::wstring listToWorkOn(const Platform& platform) {
    const std::vector<std::wstring>& named = platform.namedFiles;
    if (named.empty()) return platform.programDirectory + L"\\tarnwick.lst";
    if (named.size() > 1) throw tooMany(named);
    const std::wstring& list = named.front();
    if (!namesAList(list) || platform.files.kindOrNothing(list) == PathKind::Directory) {
        throw RuntimeError{5, L"Un fichier de liste (.lst) était attendu : " + list};
    }
    return list;
}

}  // namespace

void Program::start() {
    files_.list = listToWorkOn(platform_);
    takeHoldOfList(platform_, files_);
    showAbout();
    places_.readAll();
    attachToCad();
    showAbout();
    cad_.identify();
    fileSystem_.emplace(platform_.automation);
    if (platform_.files.kindOrNothing(files_.list) == PathKind::File) {
        showExistingList();
    } else {
        showSelection();
    }
}

void Program::attachToCad() {
    if (cad_.attach(platform_.automation)) return;
    platform_.messageBoxes.show({.text = L" Une session SolidWorks doit être ouverte  \r\n"
                                         L"   pour que Tarnwick puisse démarrer.",
                                 .title = L"Tarnwick by Mervale"});
    throw ProgramEnd{};
}
