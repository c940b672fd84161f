#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "unit/raised.h"

using Texts = std::vector<std::wstring>;
