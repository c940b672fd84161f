#include "tracking/alone_texts.h"

#include "common/numbers.h"

namespace {

constexpr wchar_t kAloneTitle[] = L"Tarnwick";

/// Why it stopped by itself; nothing when it did not.
std::wstring reasonOf(AloneOutcome::End end) {
    switch (end) {
        case AloneOutcome::End::FiveRefusals:
            return L"\r\nCinq documents de suite ne se sont pas ouverts.";
        case AloneOutcome::End::ShortOfGdiObjects:
            return L"\r\nSolidWorks utilise trop d'objets graphiques de Windows (GDI) : "
                   L"redémarrez-le, puis reprenez la liste.";
        default:
            return {};
    }
}

}  // namespace

MessageBoxContent aloneQuestion(int documents) {
    const std::wstring what = documents == 1 ? L"Enregistrer et fermer 1 document"
                                             : L"Enregistrer et fermer " + decimal(documents) +
                                                   L" documents l'un après l'autre";
    return {.text = what + L", jusqu'à la fin de la liste ?",
            .title = kAloneTitle,
            .buttons = MessageBoxContent::Buttons::YesNo,
            .defaultButton = 2};
}

MessageBoxContent aloneEndBox(const AloneOutcome& outcome) {
    const bool finished = outcome.end == AloneOutcome::End::Finished;
    return {.text = (finished ? L"Passage terminé.\r\nEnregistrés : "
                              : L"Passage interrompu.\r\nEnregistrés : ") +
                    decimal(outcome.saved) + L"\r\nNon ouverts : " + decimal(outcome.notOpened) +
                    L"\r\nNon enregistrés : " + decimal(outcome.notSaved) + reasonOf(outcome.end),
            .title = kAloneTitle};
}
