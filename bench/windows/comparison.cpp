#include "comparison.h"

#include <algorithm>
#include <chrono>
#include <vector>

namespace {

double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

}  // namespace

double timed(const Work& work) {
    using SteadyClock = std::chrono::steady_clock;
    work.prepare();
    const SteadyClock::time_point start = SteadyClock::now();
    work.run();
    return std::chrono::duration<double, std::milli>(SteadyClock::now() - start).count();
}

Comparison compareTimes(const Rounds& rounds, const std::function<double()>& floor,
                        const std::function<double()>& subject) {
    // The first run of each also does what is done only once.
    floor();
    subject();
    std::vector<double> floors;
    std::vector<double> subjects;
    std::vector<double> ratios;
    double spent = 0;
    for (int round = 0;
         round < rounds.least || (round < rounds.most && spent < rounds.enoughMilliseconds);
         ++round) {
        floors.push_back(floor());
        subjects.push_back(subject());
        ratios.push_back(subjects.back() / floors.back());
        spent += floors.back() + subjects.back();
    }
    return {medianOf(ratios), medianOf(floors), medianOf(subjects)};
}

Comparison compare(const Rounds& rounds, const Work& floor, const Work& subject) {
    return compareTimes(
        rounds, [&] { return timed(floor); }, [&] { return timed(subject); });
}
