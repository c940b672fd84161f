#pragma once

#include "ports/area.h"
#include "win32/process/handles.h"

/// The fonts of a window at one resolution, made from the one that the system uses in its own
/// boxes, at `percent` of its size.
class WindowFonts {
 public:
    WindowFonts(int dpi, int percent);

    HFONT text() const { return text_.get(); }
    HFONT heading() const { return heading_.get(); }
    HFONT fixedPitch() const { return fixedPitch_.get(); }

 private:
    UniqueFont text_;
    UniqueFont heading_;
    UniqueFont fixedPitch_;
};

/// The size of a font's average character, by which dialog templates measure: it is 4 units wide
/// and 8 high.
Size averageCharacter(HFONT font);

/// The program's icon on a window and in those of its labels that show icons, for one resolution.
class WindowIcons {
 public:
    WindowIcons(HWND window, UINT dpi);

 private:
    UniqueIcon small_;
    UniqueIcon big_;
};
