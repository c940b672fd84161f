#pragma once

#include "platform/program_window.h"

class FileSystemObject;
class WindowPlaces;
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
    ExistingListWindow(WindowFactory& windows, WindowPlaces& places, FileSystemObject& fileSystem,
                       const ProgramFiles& files, ExistingListExits& exits);

    void Form_Load();
    /// Closed by its frame: the program ends, nothing is saved.
    void Form_Close();
    void CmdOK_Click();
    void CmdAnnule_Click();
    /// Deletes the list file, even a read-only one, without asking. Raises 53 or 70 when it can't.
    void CmdEffacer_Click();

 private:
    void leave();

    WindowPlaces& places_;
    FileSystemObject& fileSystem_;
    const ProgramFiles& files_;
    ExistingListExits& exits_;
};
