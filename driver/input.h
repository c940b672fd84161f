#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// Replaces the text of an edit field, or of a combo box's, as if it were typed.
void typeInto(HWND field, const std::string& text);

/// Chooses a line of a combo box, and notifies its parent.
void chooseLine(HWND comboBox, const std::string& line);

/// Double-clicks the line of a single-selection list box that ends with this text.
void openLine(HWND list, const std::string& ending);

}  // namespace driver
