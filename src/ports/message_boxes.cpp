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

std::wstring withBoundQuotes(std::wstring text) {
    constexpr wchar_t kNoBreak = L'\u00A0';
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i - 1] == L'«' && text[i] == L' ') text[i] = kNoBreak;
        if (text[i - 1] == L' ' && text[i] == L'»') text[i - 1] = kNoBreak;
    }
    return text;
}
