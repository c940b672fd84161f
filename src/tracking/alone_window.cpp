#include "tracking/alone_window.h"

#include <algorithm>

#include "common/numbers.h"
#include "tracking/alone_ids.h"
#include "worklist/time_left.h"

namespace {

constexpr WindowTemplate kAloneWindow = {.dialogId = IDD_ALONE};

std::wstring countText(const AloneProgress& progress) {
    const int number = std::min(progress.done + 1, progress.total);
    return L"Document " + decimal(number) + L" sur " + decimal(progress.total);
}

}  // namespace

AloneWindow::AloneWindow(WindowFactory& windows) : ProgramWindow(windows, kAloneWindow, {}) {}

void AloneWindow::showBeside(const Window& other) {
    const Area work = other.workArea();
    const Size size = window_->place().size();
    window_->moveTo(areaAt({work.right - size.width, work.bottom - size.height}, size));
    window_->showAside();
}

void AloneWindow::show(const AloneProgress& progress) {
    window_->control(IDC_ALONE_COUNT).setText(countText(progress));
    window_->control(IDC_ALONE_DOCUMENT).setText(progress.document);
    window_->control(IDC_ALONE_TIMELEFT).setText(timeLeftText(progress.timeLeft));
    window_->progressBar(IDC_ALONE_PROGRESS).show(progress.done, progress.total);
}
