#pragma once

#include <string>
#include <string_view>

/// A line of the work list as the tracking window shows it: its one-based number in four digits
/// and two blanks, the label of its state, its path at the display depth. Raises 9 as shortPath.
std::wstring displayLine(int index, std::wstring_view label, std::wstring_view path, int depth);
