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
                L"Les marques ne peuvent plus être conservées à côté de la liste : enregistrez-la "
                L"souvent par « Sauver Fichier LISTE ».\r\nSi son répertoire est en lecture seule, "
                L"copiez-la d'abord ailleurs ; « Exporter le rapport... » garde l'état de chaque "
                L"document.\r\nLe passage continue.",
            .title = kTitle};
}
