#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "input/program_window.h"

class Clock;

/// Estimates how long the rest of a list will take, by the median of the last twenty documents, so
/// that a single slow one changes nothing.
class TimeLeft {
 public:
    /// A document is done with, and took so long.
    void took(std::int64_t milliseconds);
    /// Milliseconds for so many documents; nothing before the first one is done.
    std::optional<std::int64_t> forDocuments(int count) const;

 private:
    std::vector<std::int64_t> last_;
};

/// The French text, rounded to what can be known.
std::wstring timeLeftText(std::optional<std::int64_t> milliseconds);

/// The small window above all others that shows how far the pass that goes on alone has come, and
/// has the button that stops it. It never takes the keyboard. The judge takes any press in it for
/// one that stops the pass, so that nothing here handles it.
class AloneWindow : public ProgramWindow<AloneWindow> {
 public:
    /// `documents`: how many there are in all.
    AloneWindow(WindowFactory& windows, const Clock& clock, int documents);

    /// Shows it in the lower right corner of the other window's screen.
    void showBeside(const Window& other);
    /// A command begins, and the one before, if any, has ended.
    void begin();
    /// Shows the document being worked on; `left` are left, itself included.
    void show(const std::wstring& document, int left);

 private:
    const Clock& clock_;
    int documents_;
    TimeLeft timeLeft_;
    std::optional<std::int64_t> began_;  ///< when the command began
};
