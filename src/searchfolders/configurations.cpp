#include "searchfolders/configurations.h"

void clearFrom(Configuration& configuration, long first) {
    for (long i = first; i <= kMostDirectories; ++i) configuration[i].clear();
}

long firstEmpty(const Configuration& configuration, long first) {
    long i = first;
    while (i <= kMostDirectories && !configuration[i].empty()) ++i;
    return i;
}

void copyDirectories(const Configuration& from, Configuration& to) {
    const long count = directoryCount(from);
    for (long i = 1; i <= count; ++i) to[i] = from[i];
    clearFrom(to, count + 1);
}
