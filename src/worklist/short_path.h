#pragma once

#include <string>
#include <string_view>

/// "\" and `k` times "..\"; empty for 0.
std::wstring upwards(int k);

/// A path with its first directory levels, as many as `depth` at most, shown as "..\" behind the
/// drive. Empty when there is no level to hide: depth 0, a bare name, a file in a drive's root.
/// Raises 9 when the path has more than 16 backslashes before its last character.
std::wstring shortPath(std::wstring_view depth, std::wstring_view path);
