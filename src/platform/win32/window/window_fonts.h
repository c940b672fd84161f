#pragma once

#include <windows.h>

#include <memory>

struct FontDeleter {
    using pointer = HFONT;
    void operator()(HFONT font) const { DeleteObject(font); }
};
using UniqueFont = std::unique_ptr<HFONT, FontDeleter>;

/// The fonts of a window at one resolution, made from the one the system uses in its own boxes.
class WindowFonts {
 public:
    explicit WindowFonts(UINT dpi);

    HFONT text() const { return text_.get(); }
    HFONT heading() const { return heading_.get(); }
    HFONT fixedPitch() const { return fixedPitch_.get(); }

 private:
    UniqueFont text_;
    UniqueFont heading_;
    UniqueFont fixedPitch_;
};

/// The size of a font's average character, by which dialog templates measure: 4 units across and
/// 8 down.
SIZE averageCharacter(HFONT font);
