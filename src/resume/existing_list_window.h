#pragma once

#include "input/program_window.h"

class WindowPlaces;
struct Platform;
struct ProgramFiles;

/// Where the prompt leads.
class ExistingListExits {
 public:
    virtual ~ExistingListExits() = default;
    virtual void resumePass() = 0;
    virtual void declineList() = 0;
};

/// The prompt shown when a list file of an earlier run exists: resume it, start a new selection,
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
    /// Takes the list file away, even a read-only one, without asking; it stays as the previous
    /// list, with its marks (replaceList). Raises 53, 70 or 75 when it can't.
    void CmdEffacer_Click();

 private:
    void leave();

    Platform& platform_;
    WindowPlaces& places_;
    const ProgramFiles& files_;
    ExistingListExits& exits_;
};
