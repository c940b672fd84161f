#pragma once

#include <string>
#include <string_view>

/// The CAD release's name by the text of its revision, empty for a release not known: its
/// windows are then never found by their titles.
std::wstring releaseName(std::wstring_view revision);
