#pragma once

#include <windows.h>

#include <memory>

#include "answering_cad.h"
#include "cad/cad_session.h"
#include "input/event_gate.h"
#include "ports/machine.h"
#include "ports/platform.h"
#include "selection/selection_window.h"
#include "session/program_files.h"
#include "session/window_places.h"
#include "win32/files/win_files.h"
#include "win32/files/win_record_files.h"
#include "win32/process/win_list_holds.h"
#include "win32/process/win_machine.h"
#include "win32/window/dialog_window.h"
#include "win32/window/input_sieve.h"
#include "win32/window/win_file_dialogs.h"
#include "win32/window/win_gate_keeper.h"
#include "win32/window/win_message_boxes.h"
#include "win32/window/window_patience.h"

/// A desktop where every window is found.
struct DesktopWithAll : Desktop {
    WindowHandle findWindow(const std::wstring&) override { return 1; }
    WindowHandle findWindow(const std::function<bool(const std::wstring&)>&) override { return 1; }
    void restore(WindowHandle) override {}
    void bringToFront(WindowHandle) override {}
    std::optional<int> gdiObjects(WindowHandle) override { return std::nullopt; }
    bool open(const std::wstring&) override { return false; }
};

/// The ways out of the selection window, none of which is taken.
struct NoExits : SelectionExits {
    void closeSplash() override {}
    void launchPass() override {}
    void showConfigurations() override {}
    void showAbout() override {}
};

/// For a window without a form.
struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

/// What the program's windows need to live in this process: the real shell, but a CAD application
/// that answers at once.
class Stage {
 public:
    /// A CAD application that works in a directory, and a list file.
    explicit Stage(const std::wstring& workingDirectory = {}, const std::wstring& list = {});

 private:
    Judge judge_{doubleClickLimits(), [] { return Moment{GetTickCount64()}; }};
    InputSieve sieve_{judge_};
    WinGateKeeper keeper_{judge_};
    WinMessageBoxes messageBoxes_{judge_};
    EventGate gate_{keeper_, messageBoxes_, judge_};
    DialogFactory windows_;
    AnsweringAutomation automation_;
    RegistrySettings settings_;
    WinFiles& files_ = *new WinFiles;  // for readers that outlive the stage
    WinRecordFiles records_;
    WinListHolds listHolds_{files_};
    WinClock clock_;
    WinFileDialogs fileDialogs_{judge_};
    DesktopWithAll desktop_;
    WinPower power_;
    PoolWorkers workers_;
    WindowPatience patience_{judge_};

 public:
    Platform platform;
    NoExits exits;
    ProgramFiles files;
    WindowPlaces places{settings_};
    CadSession cad{desktop_};
};

/// The control of this process with this id.
HWND controlOf(int id);

/// Draws, in this window and all below it, what is due.
void drawNow(HWND window);
