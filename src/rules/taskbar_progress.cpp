#include "rules/taskbar_progress.h"

void TaskbarProgress::set(int done, int total) {
    if (done == done_ && total == total_) return;
    done_ = done;
    total_ = total;
    if (buttonMade_) button_.showProgress(done_, total_);
}

void TaskbarProgress::onButtonMade() {
    buttonMade_ = true;
    if (total_ > 0) button_.showProgress(done_, total_);
}
