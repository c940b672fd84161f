#include "ports/message_boxes.h"

const wchar_t* frenchCaption(MessageBoxes::Answer button, bool besideRetry) {
    switch (button) {
        case MessageBoxes::Answer::Yes:
            return L"&Oui";
        case MessageBoxes::Answer::No:
            return L"&Non";
        case MessageBoxes::Answer::Retry:
            return L"&Réessayer";
        case MessageBoxes::Answer::Cancel:
            return besideRetry ? L"Annuler" : nullptr;
        default:
            return nullptr;
    }
}
