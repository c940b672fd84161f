#include "tracking/tracking_texts.h"

#include <utility>

#include "common/numbers.h"
#include "worklist/list_file.h"

namespace {

constexpr wchar_t kHelpFile[] = L"DEMO.HLP";
constexpr int kHelpContext = 1000;

constexpr wchar_t kFiveRefused[] = L"Cinq documents de suite ne se sont pas ouverts.";

enum class Default { Yes = 1, No = 2 };

MessageBoxContent question(std::wstring text, Default button = Default::Yes) {
    return {.text = std::move(text),
            .buttons = MessageBoxContent::Buttons::YesNo,
            .defaultButton = static_cast<int>(button)};
}

/// Why the pass that went on alone stopped by itself; nothing when it did not.
std::wstring reasonOf(AloneOutcome::End end) {
    switch (end) {
        case AloneOutcome::End::FiveRefusals:
            return std::wstring(L"\r\n") + kFiveRefused;
        case AloneOutcome::End::ShortOfGdiObjects:
            return L"\r\nSolidWorks utilise trop d'objets graphiques de Windows (GDI) : "
                   L"redémarrez-le, puis reprenez la liste.";
        default:
            return {};
    }
}

}  // namespace

MessageBoxContent boxOf(const Question& question) {
    return {.text = std::wstring(question.firstLine) + L"\n\r" + question.secondLine,
            .title = question.title,
            .buttons = MessageBoxContent::Buttons::YesNo,
            .icon = MessageBoxContent::Icon::Stop,
            .defaultButton = 2,
            .helpFile = kHelpFile,
            .helpContext = kHelpContext};
}

MessageBoxContent missingSelectionBox(const wchar_t* text) {
    return {.text = text,
            .title = L"Manque sélection ",
            .helpFile = kHelpFile,
            .helpContext = kHelpContext};
}

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

MessageBoxContent saveRefusedBox(const std::wstring& path, const std::wstring& reason) {
    return {.text = L"SolidWorks n'a pas enregistré :\r\n" + path + L"\r\n" + reason,
            .buttons = MessageBoxContent::Buttons::RetryCancel,
            .icon = MessageBoxContent::Icon::Warning};
}

MessageBoxContent refusedInARowBox() {
    return question(std::wstring(kFiveRefused) + L"\r\nContinuer ?", Default::No);
}

MessageBoxContent marksNotKeptBox() {
    return {
        .text =
            L"Libérez de la place sur le disque de la liste : les marques ne peuvent plus être "
            L"conservées à côté d'elle. Tarnwick réessaie à chaque marque, et quand vous le "
            L"quittez.\r\nN'enregistrez pas la liste avant : un enregistrement qui échoue arrête "
            L"Tarnwick. Si son répertoire est en lecture seule, ou ne répond plus, « Exporter le "
            L"rapport... » garde ailleurs l'état de chaque document.\r\nLe passage "
            L"continue."};
}

std::wstring takenKeysText(std::span<const std::wstring> keys) {
    std::wstring text = keys.size() == 1 ? L"Cette touche est déjà prise par un autre programme :"
                                         : L"Ces touches sont déjà prises par un autre programme :";
    for (const std::wstring& key : keys) text += L"\r\n" + key;
    return text + L"\r\nLes touches ne sont pas actives dans SolidWorks.";
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

std::wstring reportNotWrittenText(const std::wstring& reason) {
    return L"Le rapport n'a pas pu être écrit.\r\n" + reason +
           L"\r\nS'il est ouvert dans un tableur, fermez-le, ou choisissez un autre nom ou "
           L"un autre répertoire.";
}

MessageBoxContent aloneQuestion(int documents) {
    const std::wstring what = documents == 1 ? L"Enregistrer et fermer 1 document"
                                             : L"Enregistrer et fermer " + decimal(documents) +
                                                   L" documents l'un après l'autre";
    return question(what + L", jusqu'à la fin de la liste ?", Default::No);
}

MessageBoxContent aloneEndBox(const AloneOutcome& outcome) {
    const bool finished = outcome.end == AloneOutcome::End::Finished;
    return {.text = (finished ? L"Passage terminé.\r\nEnregistrés : "
                              : L"Passage interrompu.\r\nEnregistrés : ") +
                    decimal(outcome.saved) + L"\r\nNon ouverts : " + decimal(outcome.notOpened) +
                    L"\r\nNon enregistrés : " + decimal(outcome.notSaved) + reasonOf(outcome.end)};
}
