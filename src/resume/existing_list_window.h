#pragma once

#include "input/program_window.h"

class WindowPlaces;
struct Platform;
struct ProgramFiles;

/// What the prompt leads to.
class ExistingListExits {
 public:
    virtual ~ExistingListExits() = default;
    virtual void resumePass() = 0;
    virtual void declineList() = 0;
};

/// The prompt shown when there is a list file of an earlier run: resume it, start a new selection,
/// or erase it first.
class ExistingListWindow : public ProgramWindow<ExistingListWindow> {
 public:
    ExistingListWindow(Platform& platform, WindowPlaces& places, const ProgramFiles& files,
                       ExistingListExits& exits);

    void Form_Load();
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();
    void CmdOK_Click();
    void CmdAnnule_Click();
    /// Removes the list file, even a read-only one, without asking. It is kept as the previous
    /// list, with its marks (replaceList). Raises 53, 70 or 75 when that fails.
    void CmdEffacer_Click();

 private:
    void leave();

    Platform& platform_;
    WindowPlaces& places_;
    const ProgramFiles& files_;
    ExistingListExits& exits_;
};
