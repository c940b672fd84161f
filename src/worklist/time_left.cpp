#include "worklist/time_left.h"

#include <algorithm>

#include "common/numbers.h"

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
