#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "driver/modal_box.h"
#include "driver/process.h"
#include "driver/sandbox.h"

namespace driver {

/// Drives a running tarnwick.exe through its windows, as a user would. Controls are named by their
/// ids, which are unique in the whole program; a control that does not exist yet is waited for.
class AppDriver {
 public:
    explicit AppDriver(const Sandbox& sandbox) : sandbox_(sandbox) {}

    /// Starts it in the sandbox's directory, with these arguments.
    void start(const std::vector<std::string>& arguments = {});
    bool running() const { return process_ && process_->running(); }
    /// Waits for the program to end by itself.
    int waitForExit() const { return static_cast<int>(process_->waitForExit()); }

    void kill() const { process_->kill(); }
    Resources resourcesInUse() const { return process_->resourcesInUse(); }

    /// Waits until the user closes it.
    void waitUntilClosed() const { process_->waitUntilClosed(); }

    /// The visible top-level window with this caption.
    HWND window(const std::string& caption) const;
    /// The captions of all visible top-level windows, message boxes included.
    std::vector<std::string> shownWindows() const;
    /// Closes a window by its frame.
    void closeByFrame(const std::string& caption) const;

    HWND control(int id) const;
    void click(int id) const;
    std::string textOf(int id) const;
    bool enabled(int id) const;
    bool visible(int id) const;
    bool checked(int id) const;
    std::vector<std::string> lines(int list) const;
    std::vector<int> selected(int list) const;
    void select(int list, const std::vector<int>& lines) const;

    void type(int field, const std::string& text) const;
    void choose(int comboBox, const std::string& line) const;
    /// Double-clicks the line of a list that ends with this text.
    void open(int list, const std::string& ending) const;

    /// Waits until the control has this text; throws with its last text if it never has.
    void waitForText(int id, const std::string& text) const;

    /// Waits for a message box.
    ModalBox box() const;
    bool showsBox() const;
    /// Answers the message box that is shown; returns its text.
    std::string answerBox(int button) const;

    /// Waits for the running command to end, since presses before that don't count: presses the
    /// button that clears a list's selection, which has to wait as well.
    void waitForCommandEnd(int list, int clearButton) const;

    void chooseInSystemMenu(const std::string& caption, int item) const;

    /// Waits for a dialog of the system with this title that proposes this file, and accepts that.
    void saveAsProposed(const std::string& title, const std::string& file) const;

    /// Waits for a dialog of the system with this title, and opens this file in it.
    void openFile(const std::string& title, const std::filesystem::path& file) const;

    /// All windows of the program with their controls, for the report of a failed test.
    std::string describe() const;

 private:
    HWND findControl(int id) const;
    HWND findBox() const;

    const Sandbox& sandbox_;
    std::unique_ptr<Process> process_;
};

}  // namespace driver
