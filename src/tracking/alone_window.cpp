#include "tracking/alone_window.h"

#include <algorithm>

#include "common/numbers.h"
#include "ports/machine.h"
#include "tracking/alone_ids.h"

namespace {

constexpr std::size_t kRemembered = 20;
constexpr std::int64_t kMinute = 60'000;
constexpr int kMinutesAnHour = 60;

std::wstring hoursAndMinutes(int minutes) {
    const std::wstring rest = decimal(minutes % kMinutesAnHour);
    return decimal(minutes / kMinutesAnHour) + L" h " + (rest.size() < 2 ? L"0" + rest : rest);
}

}  // namespace

void TimeLeft::took(std::int64_t milliseconds) {
    if (last_.size() == kRemembered) last_.erase(last_.begin());
    last_.push_back(milliseconds);
}

std::optional<std::int64_t> TimeLeft::forDocuments(int count) const {
    if (last_.empty()) return std::nullopt;
    std::vector<std::int64_t> sorted = last_;
    std::ranges::sort(sorted);
    return sorted[sorted.size() / 2] * count;
}

std::wstring timeLeftText(std::optional<std::int64_t> milliseconds) {
    const std::wstring text = L"Temps restant : ";
    if (!milliseconds) return text + L"inconnu";
    const auto minutes = static_cast<int>((*milliseconds + kMinute / 2) / kMinute);
    if (minutes < 1) return text + L"moins d'une minute";
    if (minutes == 1) return text + L"environ une minute";
    if (minutes < kMinutesAnHour) return text + L"environ " + decimal(minutes) + L" minutes";
    return text + L"environ " + hoursAndMinutes(minutes);
}

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
