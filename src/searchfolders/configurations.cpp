#include "searchfolders/configurations.h"

void clearFrom(Configuration& configuration, int first) {
    configuration.clear(static_cast<std::size_t>(first));
}

int firstEmpty(const Configuration& configuration, int first) {
    int i = first;
    while (i <= kMostDirectories && !configuration[i].empty()) ++i;
    return i;
}

void copyDirectories(const Configuration& from, Configuration& to) {
    const int count = directoryCount(from);
    for (int i = 1; i <= count; ++i) to[i] = from[i];
    clearFrom(to, count + 1);
}
