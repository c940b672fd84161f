#pragma once

#include <functional>

/// What is timed, and what is made ready for it each time without being timed.
struct Work {
    std::function<void()> run;
    std::function<void()> prepare = [] {};
};

/// The time of a work against its floor: medians, the ratio that of the pairs.
struct Comparison {
    double ratio = 0;
    double floorMilliseconds = 0;
    double subjectMilliseconds = 0;
};

/// How often works are compared.
struct Rounds {
    int least = 7;
    int most = 200;
    double enoughMilliseconds = 2000;
};

/// Runs floor and subject alternately, so that what else the machine does strikes both alike.
Comparison compare(const Rounds& rounds, const Work& floor, const Work& subject);

/// The same for works that time themselves, in milliseconds.
Comparison compareTimes(const Rounds& rounds, const std::function<double()>& floor,
                        const std::function<double()>& subject);

/// How long a work takes, in milliseconds.
double timed(const Work& work);
