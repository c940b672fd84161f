#include "input/judge.h"

#include <cstdlib>

#include "common/runtime_error.h"

using Kind = Deed::Kind;
using Wish = Situation::Wish;

namespace {

Wish wishOf(DuringSearch event) {
    switch (event) {
        case DuringSearch::Restart:
            return Wish::Restart;
        case DuringSearch::Reopen:
            return Wish::Reopen;
        default:
            return Wish::None;
    }
}

}  // namespace

Verdict Judge::take(const Deed& deed) {
    note(deed);
    return judge(deed);
}

Verdict Judge::judge(const Deed& deed) {
    const Verdict verdict = verdictOn(situation_, deed);
    if (verdict == Verdict::StopsSearch) wish(Wish::Stop);
    if (verdict == Verdict::EndsProgram) wish(Wish::EndProgram);
    if (verdict == Verdict::Restarts && situation_.wish != Wish::Reopen) {
        wish(wishOf(deed.duringSearch));
    }
    const bool closesLater = deed.kind == Kind::Event && deed.closes && situation_.callsOut > 0 &&
                             verdict != Verdict::StopsSearch;
    if (closesLater && !situation_.closeAsked) situation_.closeAsked = now();
    return verdict;
}

Verdict Judge::judgeActivation(std::int32_t x, std::int32_t y) const {
    Situation then = situation_;
    then.press = pressOf(now(), x, y);
    return verdictOn(then, {.kind = Kind::Activate});
}

void Judge::wish(Wish wish) {
    if (situation_.wish != Wish::EndProgram) situation_.wish = wish;
}

void Judge::note(const Deed& deed) {
    switch (deed.kind) {
        case Kind::Touch:
        case Kind::Press:
        case Kind::FramePress:
            return notePress(deed);
        case Kind::Release:
        case Kind::Menu:
            situation_.press = mouse_;
            return;
        case Kind::Key:
        case Kind::HotKey:
            return noteKeyDown(deed);
        case Kind::KeyUp:
            return noteKeyUp(deed);
        default:
            situation_.press.reset();
    }
}

// The third press in a row is a first one again.
bool Judge::isSecond(const Press& press) const {
    return mouse_ && !mouse_->second && press.time <= mouse_->time + limits_.time &&
           std::abs(press.x - mouse_->x) <= limits_.width &&
           std::abs(press.y - mouse_->y) <= limits_.height;
}

Press Judge::pressOf(Moment time, std::int32_t x, std::int32_t y) const {
    Press press{.time = time, .x = x, .y = y};
    press.second = isSecond(press);
    press.onNewWindow = press.second && situation_.shown && mouse_->time <= *situation_.shown;
    return press;
}

void Judge::notePress(const Deed& deed) {
    if (!deed.ofTouch) mouse_ = pressOf(deed.time, deed.x, deed.y);
    situation_.press = mouse_;
}

void Judge::noteKeyDown(const Deed& deed) {
    const bool sameKey = key_ && keyDown_ == deed.key;
    // Some systems report a held key as going up and down again at the same moment.
    const bool noTimeUp = sameKey && keyUp_ && *keyUp_ == deed.time;
    // A held key keeps the time of its first message.
    situation_.press = Press{.time = deed.repeated && sameKey ? key_->time : deed.time,
                             .repeated = deed.repeated || noTimeUp};
    // Its release belongs to the first press, however long the key was held.
    if (!deed.repeated || !sameKey) key_ = situation_.press;
    keyDown_ = deed.key;
}

void Judge::noteKeyUp(const Deed& deed) {
    if (deed.key == keyDown_) {
        keyUp_ = deed.time;
        situation_.press = key_;
    } else {
        // The key went down in another window or program.
        situation_.press = Press{.time = deed.time, .repeated = true};
    }
}

void Judge::handlerBegins(DuringSearch waiting) {
    situation_.handling = true;
    wish(wishOf(waiting));
}

void Judge::handlerEnds() {
    situation_.handling = false;
    if (keptWaiting_) situation_.worked = now();
    keptWaiting_ = false;
}

void Judge::atRest() {
    wish(Wish::None);
    situation_.searchingSince.reset();
    situation_.closeAsked.reset();
}

void Judge::callBegins() {
    keptWaiting_ = true;
    ++situation_.callsOut;
}

void Judge::questionBegins() {
    ++situation_.questions;
    windowShown();
}

void Judge::windowShown() {
    ++windowsShown_;
    situation_.worked = situation_.shown = now();
}

void Judge::searchBegins(const EventSink& window, SearchKind kind) {
    keptWaiting_ = true;
    searchBegan_ = now();
    if (!situation_.searchingSince) situation_.searchingSince = searchBegan_;
    situation_.searching = &window;
    situation_.opening = kind == SearchKind::Opening;
    situation_.alone = kind == SearchKind::Alone;
    if (situation_.wish == Wish::Stop) wish(Wish::None);
}

bool Judge::searchGoesOn() const {
    if (situation_.wish == Wish::EndProgram) throw ProgramEnd{};
    return ::searchGoesOn(situation_);
}

Moment Judge::searchLasts() const { return situation_.searching ? now() - searchBegan_ : 0; }

Moment widened(std::uint32_t time, Moment now) {
    const auto ago = static_cast<std::int32_t>(static_cast<std::uint32_t>(now) - time);
    return now - static_cast<Moment>(static_cast<std::int64_t>(ago));
}
