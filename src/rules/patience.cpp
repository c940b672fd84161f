#include "rules/patience.h"

#include <algorithm>

#include "input/judge.h"
#include "ports/dialogs.h"
#include "rules/late_binding.h"

namespace {

constexpr wchar_t kBusy[] =
    L"SolidWorks est occupé.\r\n\r\n"
    L"Réessayer : Tarnwick attend encore.\r\n"
    L"Annuler : Tarnwick s'arrête.";
constexpr wchar_t kMarksKept[] =
    L" Les marques du travail en cours sont gardées et seront proposées au prochain démarrage.";

}  // namespace

CallResult Patience::tryOnce(const std::function<CallResult()>& attempt) {
    const CallOut out(judge_);
    const CallResult result = attempt();
    // COM lets no call out as long as another program waits for the end of a message that it sent.
    const bool retries = result == call_result::kInSentMessage && machine_.answerSender();
    return retries ? attempt() : result;
}

void Patience::waitOut(unsigned milliseconds) {
    const CallOut waiting(judge_);
    if (milliseconds != 0) machine_.wait(milliseconds);
    whilePending();
}

void Patience::whilePending() {
    constexpr unsigned kWhile = 1'000;
    machine_.handleInput();
    if (!judge_.situation().closeAsked) return;
    if (!callIsOverdue(judge_.situation(), judge_.now())) return machine_.wakeIn(kWhile);
    const bool leaves = userLeaves();
    judge_.closeAnswered();
    if (leaves) machine_.endProgram();
}

bool Patience::userLeaves() {
    return boxes_.show({.text = L"SolidWorks ne répond pas.\r\nQuitter Tarnwick sans attendre ?",
                        .buttons = MessageBoxContent::Buttons::YesNo,
                        .icon = MessageBoxContent::Icon::Warning,
                        .defaultButton = 2}) == MessageBoxes::Answer::Yes;
}

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
    // Waits as long as it has waited so far: the intervals double.
    return static_cast<unsigned>(std::clamp(elapsed, kFirstWait, kLongestWait));
}

bool Patience::userGoesOn() {
    const bool marksKept = marksKept_ && marksKept_();
    return boxes_.show({.text = std::wstring(kBusy) + (marksKept ? kMarksKept : L""),
                        .buttons = MessageBoxContent::Buttons::RetryCancel,
                        .icon = MessageBoxContent::Icon::Warning}) == MessageBoxes::Answer::Retry;
}

CallResult Patience::call(const std::function<CallResult()>& attempt) {
    refusedSince_.reset();
    CallResult result = tryOnce(attempt);
    while (isBusy(result)) {
        if (const auto wait = afterRefusal()) {
            waitOut(*wait);
        } else if (userGoesOn()) {
            refusedSince_.reset();
        } else {
            return result;
        }
        result = tryOnce(attempt);
    }
    return result;
}
