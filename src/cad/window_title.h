#pragma once

#include <string_view>

/// Whether a title may be that of the CAD application's window, of whatever release, while it shows
/// this document: releases since 2005 put more into it than their name and the document's title.
bool isTitleOfAnyRelease(std::wstring_view title, std::wstring_view documentTitle);
