#include "rules/boxes_and_buttons.h"

#include <algorithm>

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

namespace {

/// Only the part that is done has a colour, so with an alert it must not be empty.
ButtonProgress seen(ButtonProgress progress) {
    constexpr int kSeenPart = 10;
    if (progress.alert != Alert::None) {
        progress.done = std::max(progress.done, (progress.total + kSeenPart - 1) / kSeenPart);
    }
    return progress;
}

}  // namespace

void TaskbarProgress::set(int done, int total) { tell({done, total, progress_.alert}); }

void TaskbarProgress::set(Alert alert) { tell({progress_.done, progress_.total, alert}); }

void TaskbarProgress::tell(const ButtonProgress& progress) {
    if (progress == progress_) return;
    progress_ = progress;
    if (buttonMade_) button_.show(seen(progress_));
}

void TaskbarProgress::onButtonMade() {
    buttonMade_ = true;
    if (progress_.total > 0) button_.show(seen(progress_));
}
