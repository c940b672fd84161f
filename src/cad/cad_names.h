#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The CAD application's type code for a path by its last three letters, in capitals only: 1 part,
/// 2 assembly, 3 drawing. Nothing for any other ending.
std::optional<std::int16_t> documentType(std::wstring_view path);

/// The CAD release's name by the text of its revision; empty for an unknown release, whose windows
/// are then never found by their exact titles.
std::wstring releaseName(std::wstring_view revision);

/// Whether a title may be that of the CAD application's window, of any release, with this document:
/// releases since 2005 put more into it than their name and the document's title.
bool isTitleOfAnyRelease(std::wstring_view title, std::wstring_view documentTitle);
