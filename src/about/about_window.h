#pragma once

#include "input/program_window.h"

/// The About window: name, version and date of the program. Enter, Escape or its frame close it.
class AboutWindow : public ProgramWindow<AboutWindow> {
 public:
    explicit AboutWindow(WindowFactory& windows);

    void close();
    bool isOpen() const { return open_; }

 private:
    bool open_ = true;
};
