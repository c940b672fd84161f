#pragma once

#include <string>
#include <string_view>

/// The path of a file that stands beside a list file: the list's, with this ending for ".lst".
std::wstring besideList(std::wstring_view listFile, std::wstring_view ending);
