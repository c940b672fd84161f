#pragma once

#include <filesystem>
#include <vector>

#include "comparison.h"

/// What a run of the bench is given.
struct Setting {
    std::filesystem::path directory;  ///< where sample trees are made, once, and results are left
    std::vector<int> sizes = {1000, 2000, 4000, 8001};  ///< numbers of documents, ascending
    Rounds rounds;
};

/// Throws if it doesn't hold, and names what was expected: a measurement must have done the work
/// that it times.
void require(bool holds, const char* what);
