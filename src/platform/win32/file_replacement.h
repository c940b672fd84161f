#pragma once

#include <string>
#include <string_view>

/// Replaces a file whole: written beside it, flushed, then moved over it, so that at any moment
/// the path holds all of the old bytes or all of the new. Raises 70, 75 or 76 and then leaves the
/// old file as it was and nothing beside it.
void replaceFile(const std::wstring& path, std::string_view bytes);
