#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// Replaces the text of an edit field, or of a combo box's, as if it were typed.
void TypeInto(HWND field, const std::string& text);

/// Chooses a line of a combo box, and tells its parent.
void ChooseLine(HWND comboBox, const std::string& line);

/// Double-clicks the line of a single-selection list box that ends with this text.
void OpenLine(HWND list, const std::string& ending);

}  // namespace driver
