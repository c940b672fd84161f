#include "searchfolders/folder_list.h"

#include "app/module1.h"
#include "platform/automation.h"
#include "platform/message_boxes.h"

namespace {

constexpr std::int32_t kReferencedDocuments = 0;  // the search folders for those
MessageBoxContent outcome(bool applied) {
    using Icon = MessageBoxContent::Icon;
    return {.text = applied ? L"les répertoires de recherche de SOLIDWORKS ont été changés !"
                            : L"Echec de la tentative de modification des répertoires de recherche "
                              L"de SOLIDWORKS !",
            .title = applied ? L"Réglages SOLIDWORKS réussie" : L"Echec du Réglage SOLIDWORKS",
            .icon = applied ? Icon::None : Icon::Stop,
            .defaultButton = 2,
            .helpFile = L"DEMO.HLP",
            .helpContext = 1000};
}

}  // namespace

void splitFolders(std::wstring_view folders, Configuration& configuration) {
    if (folders.empty()) return;
    long j = 1;
    std::size_t end = 0;
    while ((end = folders.find(L';')) != std::wstring_view::npos) {
        configuration[j++] = folders.substr(0, end);
        folders.remove_prefix(end + 1);
    }
    configuration[j] = folders;
}

std::wstring joinFolders(const Configuration& configuration) {
    std::wstring folders = configuration[1];
    for (long j = 2; !configuration[j].empty(); ++j) folders += L';' + configuration[j];
    return folders;
}

void LireRepCourants(Module1& module) {
    const std::wstring folders =
        textOf(callMethod(module.SwApp, L"GetSearchFolders", {kReferencedDocuments}));
    Configuration& current = module.configs.ConfRep[0];
    current[0] = L"En Cours";
    splitFolders(folders, current);
}

void AppliquerConf(Module1& module, MessageBoxes& boxes, long index) {
    std::wstring folders = joinFolders(module.configs.ConfRep[index]);
    const Value answer =
        callMethod(module.SwApp, L"setsearchfolders", {kReferencedDocuments, &folders});
    boxes.show(outcome(isTrue(answer)));
}
