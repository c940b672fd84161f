#pragma once

#include <string>
#include <vector>

#include "driver/sandbox.h"

namespace driver::demo {

/// Creates a tree of sample documents such as a small design office might have; returns their full
/// paths.
std::vector<std::string> createSampleDocuments(const Sandbox& sandbox);

}  // namespace driver::demo
