#include "tracking/alone_window.h"

#include "common/numbers.h"
#include "ports/machine.h"
#include "tracking/alone_ids.h"

namespace {

constexpr WindowTemplate kAloneWindow = {.dialogId = IDD_ALONE};

}  // namespace

AloneWindow::AloneWindow(WindowFactory& windows, const Clock& clock, int documents)
    : ProgramWindow(windows, kAloneWindow, {}), clock_(clock), documents_(documents) {}

void AloneWindow::showBeside(const Window& other) {
    const Area work = other.workArea();
    const Size size = window_->place().size();
    window_->moveTo(areaAt({work.right - size.width, work.bottom - size.height}, size));
    window_->showAside();
}

void AloneWindow::begin() {
    const std::int64_t now = clock_.ticks();
    if (began_) timeLeft_.took(now - *began_);
    began_ = now;
}

void AloneWindow::show(const std::wstring& document, int left) {
    const int done = documents_ - left;
    window_->control(IDC_ALONE_COUNT)
        .setText(L"Document " + decimal(done + 1) + L" sur " + decimal(documents_));
    window_->control(IDC_ALONE_DOCUMENT).setText(document);
    window_->control(IDC_ALONE_TIMELEFT).setText(timeLeftText(timeLeft_.forDocuments(left)));
    window_->progressBar(IDC_ALONE_PROGRESS).show(done, documents_);
}
