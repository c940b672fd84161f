#pragma once

#include <string>
#include <vector>

#include "driver/sandbox.h"

namespace driver::demo {

/// Creates a tree of sample documents as a small design office might have it; gives their full
/// paths.
std::vector<std::string> createSampleDocuments(const Sandbox& sandbox);

}  // namespace driver::demo
