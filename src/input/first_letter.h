#pragma once

#include <functional>
#include <optional>
#include <string>

/// The zero-based line, below this one and then again from the top, whose text begins with a
/// letter in any case; blanks in front of it don't count. `from` may be -1, or the line itself.
std::optional<int> lineWithLetter(wchar_t letter, int from, int count,
                                  const std::function<std::wstring(int)>& line);
