#pragma once

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "unit/raised.h"

using Texts = std::vector<std::wstring>;

inline bool has(std::wstring_view text, std::wstring_view part) {
    return text.find(part) != std::wstring_view::npos;
}
