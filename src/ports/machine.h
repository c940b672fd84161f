#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "ports/search.h"

class Automation;
class FileDialogs;
class Files;
class ListHolds;
class MessageBoxes;
class RecordFiles;
class WindowFactory;

/// A time as the user's clocks and calendars show it.
struct LocalTime {
    int year, month, day;
    int hour, minute, second;
};

/// The time of day, and the time that passes.
class Clock {
 public:
    virtual ~Clock() = default;
    /// Seconds since the beginning of 1970, universal time.
    virtual std::int64_t now() const = 0;
    /// Milliseconds since some fixed moment; no user can set them back.
    virtual std::int64_t ticks() const = 0;
    /// A time of `now` in the user's time zone.
    virtual LocalTime local(std::int64_t time) const = 0;
};

/// The per-user settings store: one text per application, section and key. Keys are matched
/// without regard to case.
class Settings {
 public:
    virtual ~Settings() = default;

    /// The stored text, or `otherwise` when there is no such entry.
    virtual std::wstring read(const std::wstring& application, const std::wstring& section,
                              const std::wstring& key, const std::wstring& otherwise) = 0;

    /// Creates or replaces the entry. Raises 75 when the store refuses it.
    virtual void write(const std::wstring& application, const std::wstring& section,
                       const std::wstring& key, const std::wstring& value) = 0;
};

/// Other programs and their windows.
class Desktop {
 public:
    using WindowHandle = std::uintptr_t;

    virtual ~Desktop() = default;

    /// The top-level window with exactly this title, 0 when there is none
    /// (the FindWindowA function, the title in the process's ANSI code page).
    virtual WindowHandle findWindow(const std::wstring& title) = 0;

    /// The uppermost window of another program with a title like this, 0 when there is none: a
    /// visible one at the top level that belongs to no other.
    virtual WindowHandle findWindow(const std::function<bool(const std::wstring&)>& isTitle) = 0;

    /// Restores a minimised window; any other stays as it is.
    virtual void restore(WindowHandle window) = 0;

    /// Brings a window to the front; with 0 nothing happens (the SetForegroundWindow function).
    virtual void bringToFront(WindowHandle window) = 0;

    /// How many GDI objects the program of a window uses; nothing when unknown (the GetGuiResources
    /// function).
    virtual std::optional<int> gdiObjects(WindowHandle window) = 0;

    /// Opens a document in its program; false when that fails (the ShellExecuteEx function).
    virtual bool open(const std::wstring& document) = 0;
};

/// Whether the machine may go to sleep.
class Power {
 public:
    virtual ~Power() = default;
    /// Keeps the system awake though nobody uses it, or no longer. Its screen may go dark, and its
    /// user may still send it to sleep.
    virtual void keepAwake(bool awake) = 0;
};

/// While it lives the system doesn't fall asleep by itself.
class Awake {
 public:
    explicit Awake(Power& power) : power_(power) { power_.keepAwake(true); }
    ~Awake() { power_.keepAwake(false); }
    Awake(const Awake&) = delete;
    Awake& operator=(const Awake&) = delete;

 private:
    Power& power_;
};

/// All that the program needs from the machine it runs on.
struct Platform {
    Automation& automation;
    Settings& settings;
    Files& files;
    RecordFiles& records;
    ListHolds& listHolds;
    const Clock& clock;
    MessageBoxes& messageBoxes;
    FileDialogs& fileDialogs;
    Desktop& desktop;
    Power& power;
    WindowFactory& windows;
    SearchServices search;
    std::wstring programDirectory;              ///< without a trailing backslash
    std::vector<std::wstring> namedFiles = {};  ///< on the command line, by their full paths
};
