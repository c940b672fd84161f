#include "tracking/kept_mark_texts.h"

#include "common/numbers.h"

namespace {

constexpr wchar_t kTitle[] = L"Tarnwick";

MessageBoxContent question(std::wstring text) {
    return {.text = std::move(text), .title = kTitle, .buttons = MessageBoxContent::Buttons::YesNo};
}

}  // namespace

MessageBoxContent keptMarksBox(int documents) {
    return question(
        L"Le passage précédent s'est arrêté avant l'enregistrement de la liste.\r\n"
        L"Documents marqués depuis : " +
        decimal(documents) + L"\r\nRetrouver ces marques ?");
}

MessageBoxContent interruptedOpeningBox(const std::wstring& path) {
    return question(L"Tarnwick s'est arrêté pendant l'ouverture de :\r\n" + path +
                    L"\r\nPasser au document suivant ?");
}

MessageBoxContent marksNotKeptBox() {
    return {.text =
                L"Libérez de la place sur le disque de la liste : les marques ne peuvent plus être "
                L"conservées à côté d'elle. Tarnwick réessaie à chaque marque.\r\nN'enregistrez "
                L"pas la liste avant : un enregistrement qui échoue arrête Tarnwick. Si son "
                L"répertoire est en lecture seule, ou ne répond plus, « Exporter le "
                L"rapport... » garde ailleurs l'état de chaque document.\r\nLe passage "
                L"continue.",
            .title = kTitle};
}
