#include "input/verdict.h"

namespace {

using Kind = Deed::Kind;
using Target = Deed::Target;
using Wish = Situation::Wish;

/// The resolution of the clock that dates messages, in milliseconds (the GetTickCount function).
constexpr Moment kTick = 16;

Verdict dropIf(bool unmeant) { return unmeant ? Verdict::Drops : Verdict::Counts; }

/// Whether it was pressed before the last command ended.
bool isLate(const Situation& now) {
    return now.press && now.worked && now.press->time <= *now.worked;
}

bool isOnNewWindow(const Situation& now) { return now.press && now.press->onNewWindow; }

/// Whether a person pressed something without meaning a command.
bool isUnmeant(const Situation& now) {
    return isLate(now) || isOnNewWindow(now) || (now.press && now.press->repeated);
}

bool isSecond(const Situation& now) { return now.press && now.press->second; }

/// What is pressed during a call would become a command after it. Presses in a box are its answers.
bool isCallOut(const Situation& now) { return now.callsOut > 0 && now.questions == 0; }

Verdict onButton(const Situation& now) { return dropIf(isUnmeant(now) || isCallOut(now)); }

bool pressesButton(int key) {
    using namespace virtual_key;
    return key == kEnter || key == kSpace || key == kEscape;
}

Verdict onKey(const Situation& now, const Deed& deed) {
    const bool opensSystemMenu = deed.withAlt && deed.key == virtual_key::kSpace;
    if (opensSystemMenu && isLate(now)) return Verdict::Drops;
    const bool isCommand = deed.target == Target::Button && pressesButton(deed.key);
    return isCommand ? onButton(now) : Verdict::Counts;
}

/// What moves, sizes or closes a window takes effect when its turn comes, unless it hit a new
/// window by mistake.
Verdict onFrame(const Situation& now) { return dropIf(isOnNewWindow(now)); }

Verdict onMessage(const Situation& now, const Deed& deed) {
    switch (deed.kind) {
        case Kind::Press:
            return deed.target == Target::Button ? onButton(now) : Verdict::Counts;
        case Kind::FramePress:
            return onFrame(now);
        case Kind::Key:
            return onKey(now, deed);
        default:
            return Verdict::Counts;
    }
}

bool stopsSearch(const Deed& deed) {
    return deed.kind == Kind::Key && deed.key == virtual_key::kEscape && !deed.withAlt;
}

/// A press that stops a pass going on alone does nothing else.
Verdict onStop(const Situation& now) {
    return isUnmeant(now) ? Verdict::Drops : Verdict::StopsSearch;
}

bool isButtonPressed(const Deed& deed) {
    if (deed.target != Target::Button) return false;
    return deed.kind == Kind::Press || deed.kind == Kind::Click ||
           (deed.kind == Kind::Key && pressesButton(deed.key));
}

/// What may reach a window while it searches: its frame, and what asks for a newer search.
Verdict onMessageDuringSearch(const Situation& now, const Deed& deed) {
    // Escape pressed before the search began was not meant for it.
    if (stopsSearch(deed)) {
        const bool before = now.searchingSince && deed.time + kTick < *now.searchingSince;
        return before ? Verdict::Drops : Verdict::StopsSearch;
    }
    if (now.alone && isButtonPressed(deed)) return onStop(now);
    switch (deed.kind) {
        case Kind::Press:
        case Kind::FramePress:
        case Kind::Key:
        case Kind::Typed:
        case Kind::Scroll:
            break;
        case Kind::Menu:
        case Kind::Click:
            return Verdict::Drops;
        default:
            return Verdict::Counts;
    }
    const bool reaches = deed.target == Target::SearchControl || deed.target == Target::Window;
    return reaches ? onMessage(now, deed) : Verdict::Drops;
}

/// Searches show no boxes; a pass that goes on alone does when the session is busy.
bool answersBox(const Situation& now) { return now.alone && now.questions > 0; }

bool asksForSearch(const Situation& now, const Deed& deed) {
    return now.searching && deed.window == now.searching && deed.duringSearch != DuringSearch::Drop;
}

/// Whether the pass is going on alone, with no box that waits for an answer.
bool isAlone(const Situation& now) { return now.alone && now.searching && now.questions == 0; }

Verdict onCommand(const Situation& now, const Deed& deed) {
    if (isAlone(now)) return deed.fromProgram ? Verdict::StopsSearch : onStop(now);
    if (!now.press || deed.fromProgram) return Verdict::Counts;
    if (isUnmeant(now) || (isSecond(now) && !deed.takesSecond)) return Verdict::Drops;
    return dropIf(now.handling && !asksForSearch(now, deed));
}

/// A hot key is pressed while another program is in front: it acts at once or not at all.
Verdict onHotKey(const Situation& now, const Deed& deed) {
    const bool drops = !deed.usable || (now.handling && !isAlone(now));
    return drops ? Verdict::Drops : onCommand(now, deed);
}

Verdict onAside(const Situation& now, const Deed& deed) {
    // F1 in a box reaches the box's owner, too.
    return now.handling ? Verdict::Drops : onCommand(now, deed);
}

Verdict onEvent(const Situation& now, const Deed& deed) {
    if (!now.searching) return Verdict::Counts;
    if (deed.closes) {
        if (deed.window == now.searching) return Verdict::EndsProgram;
        return now.alone ? Verdict::StopsSearch : Verdict::Counts;
    }
    return asksForSearch(now, deed) ? Verdict::Restarts : Verdict::Drops;
}

}  // namespace

Verdict verdictOn(const Situation& situation, const Deed& deed) {
    switch (deed.kind) {
        case Kind::Activate:
            return dropIf(isOnNewWindow(situation));
        case Kind::OpenMenu:
            // The next press would choose from a menu that nobody saw.
            return dropIf(isLate(situation));
        case Kind::Aside:
            return onAside(situation, deed);
        case Kind::Command:
            return onCommand(situation, deed);
        case Kind::HotKeyCommand:
            return onHotKey(situation, deed);
        case Kind::Event:
            return onEvent(situation, deed);
        case Kind::WaitedEvent:
            return dropIf(!deed.usable);
        default:
            return situation.searching && !answersBox(situation)
                       ? onMessageDuringSearch(situation, deed)
                       : onMessage(situation, deed);
    }
}

bool searchGoesOn(const Situation& situation) {
    return situation.wish == Wish::None || (situation.opening && situation.wish == Wish::Restart);
}

bool callIsOverdue(const Situation& situation, Moment now) {
    constexpr Moment kLongEnough = 30'000;
    return isCallOut(situation) && situation.closeAsked &&
           now >= *situation.closeAsked + kLongEnough;
}

Pointer pointerIn(const Situation& situation) {
    if (situation.questions > 0 || !situation.handling) return Pointer::Arrow;
    return situation.searching ? Pointer::ArrowAtWork : Pointer::Wait;
}
