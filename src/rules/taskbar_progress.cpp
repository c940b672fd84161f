#include "rules/taskbar_progress.h"

#include <algorithm>

namespace {

/// A colour is seen on the part that is done alone, which must have a length for it.
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
