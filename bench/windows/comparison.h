#pragma once

#include <functional>

/// What is timed, and how it is prepared each time, untimed.
struct Work {
    std::function<void()> run;
    std::function<void()> prepare = [] {};
};

/// The time of a work compared with its floor: medians, for the ratio of the pairs' ratios.
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

/// Runs floor and subject alternately, so that other work of the machine affects both alike.
Comparison compare(const Rounds& rounds, const Work& floor, const Work& subject);

/// The same for works that time themselves, in milliseconds.
Comparison compareTimes(const Rounds& rounds, const std::function<double()>& floor,
                        const std::function<double()>& subject);

/// How long a work takes, in milliseconds.
double timed(const Work& work);
