#include "app/command_line.h"

#include <vector>

#include "common/runtime_error.h"
#include "common/text.h"
#include "ports/files.h"
#include "ports/platform.h"

namespace {

/// Whether a full path can be a list's: a name that ends with ".lst" and that Windows lets a file
/// have (Naming Files, Paths, and Namespaces; a colon would name a stream within one).
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

}  // namespace

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
