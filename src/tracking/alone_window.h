#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "input/program_window.h"

/// How far going on alone has come.
struct AloneProgress {
    int done = 0;  ///< documents
    int total = 0;
    std::wstring document;                 ///< the one that is worked on
    std::optional<std::int64_t> timeLeft;  ///< milliseconds
};

/// The small window that shows how far going on alone has come, above all others, and has the
/// button that stops it. It never takes the keyboard. What is pressed in it is judged as input that
/// stops, whatever it is, so that nothing here handles it.
class AloneWindow : public ProgramWindow<AloneWindow> {
 public:
    explicit AloneWindow(WindowFactory& windows);

    /// Shows it in the lower right corner of the screen that the other window is on.
    void showBeside(const Window& other);
    void show(const AloneProgress& progress);
};
