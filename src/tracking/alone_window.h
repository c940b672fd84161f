#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "input/program_window.h"

class Clock;

/// Tells how long the rest of a list will take, by the median of the last twenty documents: one
/// that took far longer than the others changes nothing.
class TimeLeft {
 public:
    /// A document is done with.
    void took(std::int64_t milliseconds);
    /// Milliseconds for so many documents; nothing before the first one is done with.
    std::optional<std::int64_t> forDocuments(int count) const;

 private:
    std::vector<std::int64_t> last_;
};

/// As the user reads it, rounded as far as it can be known.
std::wstring timeLeftText(std::optional<std::int64_t> milliseconds);

/// The small window that shows how far going on alone has come, above all others, and has the
/// button that stops it. It never takes the keyboard. What is pressed in it is judged as input that
/// stops, whatever it is, so that nothing here handles it.
class AloneWindow : public ProgramWindow<AloneWindow> {
 public:
    /// `documents`: how many there are.
    AloneWindow(WindowFactory& windows, const Clock& clock, int documents);

    /// Shows it in the lower right corner of the screen that the other window is on.
    void showBeside(const Window& other);
    /// A command begins; the one before, if any, is done with.
    void begin();
    /// This document is worked on, and so many are left, itself included.
    void show(const std::wstring& document, int left);

 private:
    const Clock& clock_;
    int documents_;
    TimeLeft timeLeft_;
    std::optional<std::int64_t> began_;  ///< the command
};
