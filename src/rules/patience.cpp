#include "rules/patience.h"

#include <algorithm>

#include "input/call_out.h"
#include "ports/message_boxes.h"

namespace {

constexpr wchar_t kBusy[] =
    L"SolidWorks est occupé.\r\n\r\n"
    L"Réessayer : Tarnwick attend encore.\r\n"
    L"Annuler : Tarnwick s'arrête.";
constexpr wchar_t kMarksKept[] =
    L" Les marques du travail en cours sont gardées et seront proposées au prochain démarrage.";

CallResult tryOnce(const std::function<CallResult()>& attempt) {
    const CallOut out;
    return attempt();
}

}  // namespace

std::optional<unsigned> Patience::afterRefusal() {
    constexpr std::uint64_t kPatience = 10'000;
    constexpr std::uint64_t kFirstWait = 50;
    constexpr std::uint64_t kLongestWait = 1'000;
    const std::uint64_t now = machine_.now();
    if (!refusedSince_) {
        refusedSince_ = now;
        return 0;
    }
    const std::uint64_t elapsed = now - *refusedSince_;
    if (elapsed >= kPatience) return std::nullopt;
    // As long as it has taken so far: the intervals double.
    return static_cast<unsigned>(std::clamp(elapsed, kFirstWait, kLongestWait));
}

bool Patience::userGoesOn() {
    const bool marksKept = marksKept_ && marksKept_();
    return boxes_.show({.text = std::wstring(kBusy) + (marksKept ? kMarksKept : L""),
                        .title = L"Tarnwick",
                        .buttons = MessageBoxContent::Buttons::RetryCancel,
                        .icon = MessageBoxContent::Icon::Warning}) == MessageBoxes::Answer::Retry;
}

CallResult Patience::call(const std::function<CallResult()>& attempt) {
    refusedSince_.reset();
    CallResult result = tryOnce(attempt);
    while (isBusy(result)) {
        if (const auto wait = afterRefusal()) {
            const CallOut waiting;
            if (*wait != 0) machine_.wait(*wait);
        } else if (userGoesOn()) {
            refusedSince_.reset();
        } else {
            return result;
        }
        result = tryOnce(attempt);
    }
    return result;
}
