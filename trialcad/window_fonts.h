#pragma once

#include <windows.h>

/// The window's fonts at one resolution.
class WindowFonts {
 public:
    explicit WindowFonts(UINT dpi);
    ~WindowFonts();
    WindowFonts(const WindowFonts&) = delete;
    WindowFonts& operator=(const WindowFonts&) = delete;

    HFONT text() const { return text_; }
    HFONT heading() const { return heading_; }
    HFONT fixedPitch() const { return fixedPitch_; }

 private:
    HFONT text_;
    HFONT heading_;
    HFONT fixedPitch_;
};
