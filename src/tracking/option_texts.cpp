#include "tracking/option_texts.h"

#include "worklist/beside_list.h"

namespace {

MessageBoxContent warning(std::wstring text) {
    return {
        .text = std::move(text), .title = L"Tarnwick", .icon = MessageBoxContent::Icon::Warning};
}

}  // namespace

MessageBoxContent takenKeysBox(std::span<const std::wstring> keys) {
    std::wstring text = keys.size() == 1 ? L"Cette touche est déjà prise par un autre programme :"
                                         : L"Ces touches sont déjà prises par un autre programme :";
    for (const std::wstring& key : keys) text += L"\r\n" + key;
    return warning(text + L"\r\nLes touches ne sont pas actives dans SolidWorks.");
}

SaveQuestion reportQuestion(const std::wstring& listFile) {
    const std::wstring path = besideList(listFile, L"-rapport.csv");
    const std::size_t name = path.find_last_of(L'\\') + 1;
    return {.title = L"Exporter le rapport",
            .directory = path.substr(0, name == 0 ? 0 : name - 1),
            .name = path.substr(name),
            .kind = L"Tableau (*.csv)",
            .extension = L"csv"};
}

MessageBoxContent reportNotWrittenBox(const std::wstring& reason) {
    return warning(L"Le rapport n'a pas pu être écrit.\r\n" + reason +
                   L"\r\nS'il est ouvert dans un tableur, fermez-le, ou choisissez un autre nom ou "
                   L"un autre répertoire.");
}
