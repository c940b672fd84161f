#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// The text of the tool that a tooltip window of the same process keeps for a control; empty if
/// there is none.
std::string toolTipOf(HWND control);

}  // namespace driver
