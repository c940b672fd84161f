#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "pickers/tree_walk.h"
#include "ports/controls.h"

class EventSink;
class Files;

/// Limits something to a few times per second.
class Pulse {
 public:
    bool due() {
        constexpr std::chrono::milliseconds kInterval(250);
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < kInterval) return false;
        last_ = now;
        return true;
    }

 private:
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

/// While it lives a label says that a search goes on, even before there is anything to count.
class SearchSign {
 public:
    explicit SearchSign(Control& label) : label_(label), before_(label.text()) {
        label_.setText(L"Recherche…");
        label_.repaint();
    }
    ~SearchSign() { label_.setText(before_); }
    SearchSign(const SearchSign&) = delete;
    SearchSign& operator=(const SearchSign&) = delete;

 private:
    Control& label_;
    std::wstring before_;
};

/// A drop-down of the drives present, each shown as "c:".
class DrivePicker {
 public:
    DrivePicker(ComboBox& box, Files& files) : box_(box), files_(files) {}

    /// Lists the drives; none is chosen yet.
    void fill();

    /// Chooses the drive that a path begins with; none when it isn't present.
    void setDrive(std::wstring_view path);

    /// The chosen drive's letter, 0 for none.
    wchar_t drive() const;

 private:
    ComboBox& box_;
    Files& files_;
    std::vector<wchar_t> letters_;
};

/// The outcome of opening a directory.
enum class Opening {
    Another,  ///< another one than before is open
    Same,
    GivenUp  ///< the user stopped it or asked for something newer
};

/// A list of the open directory's ancestors, the directory itself, and its sub-directories, each
/// level indented under the one above. The user opens another by a double click or Enter.
class DirectoryPicker {
 public:
    /// `label` says when a directory is being opened; `window` holds both.
    DirectoryPicker(ListBox& list, Control& label, const SearchServices& services,
                    const EventSink& window)
        : list_(list), label_(label), services_(services), window_(window) {}

    /// The open directory: a drive root with its trailing backslash, any other without one.
    const std::wstring& path() const { return path_; }

    /// Opens a directory. If the user gives up, or the directory can't be read, the picker stays as
    /// it was. Raises 70 or 76.
    Opening open(const std::wstring& path);

    /// The same, but if the user gives up the picker shows `refuge`, an existing directory, without
    /// reading it.
    void openOr(const std::wstring& path, const std::wstring& refuge);

    /// Opens the directory of the selected line.
    Opening openSelected();

 private:
    std::wstring pathOf(std::size_t line) const;
    void show(std::wstring path, std::vector<Subdirectory> subdirectories);

    ListBox& list_;
    Control& label_;
    SearchServices services_;
    const EventSink& window_;
    std::wstring path_;
    std::vector<std::wstring> ancestors_;  // full paths, from the root to the open directory
    std::vector<Subdirectory> subdirectories_;
};
