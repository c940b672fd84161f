#pragma once

#include "input/program_window.h"

/// The About window, with the program's name, version and date. Enter, Escape and its frame close
/// it.
class AboutWindow : public ProgramWindow<AboutWindow> {
 public:
    explicit AboutWindow(WindowFactory& windows);

    void close();
    bool isOpen() const { return open_; }

 private:
    bool open_ = true;
};
