#pragma once

#include <string>

#include "options.h"

/// The release's commercial name, from the leading number of its revision.
std::wstring releaseName(const std::wstring& revision);

/// The main window's title while the given document is active; empty text when none is.
std::wstring windowTitle(TitleStyle style, const std::wstring& release,
                         const std::wstring& documentTitle);
