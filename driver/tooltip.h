#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// The text that a tooltip window of the control's process keeps for this control; empty if there
/// is none.
std::string toolTipOf(HWND control);

}  // namespace driver
