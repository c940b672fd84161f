#pragma once

#include <memory>
#include <string>
#include <vector>

#include "driver/modal_box.h"
#include "driver/process.h"
#include "driver/sandbox.h"

namespace driver {

/// Drives a running tarnwick.exe through its windows, as its user would. Controls are named by
/// their ids, which are unique in the whole program; a control that is not there yet is waited for.
class AppDriver {
 public:
    explicit AppDriver(const Sandbox& sandbox) : sandbox_(sandbox) {}

    /// Starts it in the sandbox's directory, with these arguments.
    void Start(const std::vector<std::string>& arguments = {});
    bool Running() const { return process_ && process_->Running(); }
    /// Waits for the program to end by itself.
    int WaitForExit() const { return static_cast<int>(process_->WaitForExit()); }

    void Kill() const { process_->Kill(); }
    Resources ResourcesInUse() const { return process_->ResourcesInUse(); }

    /// Waits until its user closes it.
    void WaitUntilClosed() const { process_->WaitUntilClosed(); }

    /// The shown top-level window with this caption.
    HWND Window(const std::string& caption) const;
    /// The captions of all top-level windows that are shown, message boxes included.
    std::vector<std::string> ShownWindows() const;
    /// Closes a window by its frame.
    void CloseByFrame(const std::string& caption) const;

    HWND Control(int id) const;
    void Click(int id) const;
    std::string TextOf(int id) const;
    bool Enabled(int id) const;
    bool Visible(int id) const;
    bool Checked(int id) const;
    std::vector<std::string> Lines(int list) const;
    std::vector<int> Selected(int list) const;
    void Select(int list, const std::vector<int>& lines) const;

    void Type(int field, const std::string& text) const;
    void Choose(int comboBox, const std::string& line) const;
    /// Double-clicks the line of a list that ends with this text.
    void Open(int list, const std::string& ending) const;

    /// Waits until the control's text is `text`; throws with the text it has if it never is.
    void WaitForText(int id, const std::string& text) const;

    /// The message box that is shown; waited for.
    ModalBox Box() const;
    bool ShowsBox() const;

    /// Waits for the end of the command at work: what is pressed before does not count. It clears
    /// a list by its button, which waits, too.
    void WaitForCommandEnd(int list, int clearButton) const;

    void ChooseInSystemMenu(const std::string& caption, int item) const;

    /// Waits for a dialog of the system with this title that proposes this file, and accepts it.
    void SaveAsProposed(const std::string& title, const std::string& file) const;

    /// All windows of the program with their controls, for the report of a failed test.
    std::string Describe() const;

 private:
    HWND FindControl(int id) const;
    HWND FindBox() const;

    const Sandbox& sandbox_;
    std::unique_ptr<Process> process_;
};

}  // namespace driver
