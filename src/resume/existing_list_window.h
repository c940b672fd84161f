#pragma once

#include <memory>

#include "platform/window.h"

class Navigation;
struct Module1;
struct Platform;

/// The prompt shown when a list file of an earlier run exists: resume it, start a new selection,
/// or erase it first.
class ExistingListWindow : public EventSink {
 public:
    ExistingListWindow(Module1& module, Platform& platform, Navigation& navigation);

    void raise(int controlId, Event event) override;
    Window& window() { return *window_; }

    void Form_Load();
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();
    void CmdOK_Click();
    void CmdAnnule_Click();
    /// Deletes the list file, even a read-only one, without asking. Raises 53 or 70 when it can't.
    void CmdEffacer_Click();

 private:
    void Quitter(bool reprendre);

    Module1& module_;
    Platform& platform_;
    Navigation& navigation_;
    std::unique_ptr<Window> window_;
};
