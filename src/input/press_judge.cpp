#include "input/press_judge.h"

#include <cstdlib>

namespace {

/// Whether one time is not after another, around the wrap, too.
bool notAfter(PressJudge::Time a, PressJudge::Time b) {
    return static_cast<std::int32_t>(a - b) <= 0;
}

}  // namespace

bool startsCommand(const PressVerdict& press, bool takesSecondPress, bool busy) {
    if (press.late || press.repeated || press.onNewWindow) return false;
    if (press.second && !takesSecondPress) return false;
    return !(press.pressed && busy);
}

bool PressJudge::isSecond(const Press& press) const {
    return mouse_ && press.time - mouse_->time <= limits_.time &&
           std::abs(press.x - mouse_->x) <= limits_.width &&
           std::abs(press.y - mouse_->y) <= limits_.height;
}

PressJudge::Press PressJudge::judged(Time time, std::int32_t x, std::int32_t y) const {
    Press press{.time = time, .x = x, .y = y};
    press.second = isSecond(press);
    press.onNewWindow = press.second && shown_ && notAfter(mouse_->time, *shown_);
    return press;
}

void PressJudge::press(Time time, std::int32_t x, std::int32_t y) {
    current_ = mouse_ = judged(time, x, y);
}

PressVerdict PressJudge::foreseen(Time time, std::int32_t x, std::int32_t y) const {
    return verdictOf(judged(time, x, y));
}

void PressJudge::keyDown(Time time, int key, bool repeated) {
    const bool sameKey = key_ && keyDown_ == key;
    // Some systems let a held key go up and down again, in no time.
    const bool noTimeUp = sameKey && keyUp_ && *keyUp_ == time;
    // A held key keeps the time at which it went down first.
    current_ =
        Press{.time = repeated && sameKey ? key_->time : time, .repeated = repeated || noTimeUp};
    // Letting go of it is one press, however long it was held.
    if (!repeated || !sameKey) key_ = current_;
    keyDown_ = key;
}

void PressJudge::keyUp(Time time, int key) {
    if (key == keyDown_) {
        keyUp_ = time;
        current_ = key_;
    } else {
        // It went down in another window, or in another program.
        current_ = Press{.time = time, .repeated = true};
    }
}

PressVerdict PressJudge::verdictOf(const Press& press) const {
    return {.pressed = true,
            .late = worked_ && notAfter(press.time, *worked_),
            .repeated = press.repeated,
            .second = press.second,
            .onNewWindow = press.onNewWindow};
}

PressVerdict PressJudge::verdict() const {
    return current_ ? verdictOf(*current_) : PressVerdict{};
}
