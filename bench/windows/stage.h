#pragma once

#include <windows.h>

#include <memory>

#include "answering_cad.h"
#include "app/machine.h"
#include "cad/cad_session.h"
#include "selection/selection_window.h"
#include "storage/program_files.h"
#include "storage/window_places.h"

/// A desktop on which every window is found.
struct DesktopWithAll : Desktop {
    WindowHandle findWindow(const std::wstring&) override { return 1; }
    WindowHandle findWindow(const std::function<bool(const std::wstring&)>&) override { return 1; }
    void restore(WindowHandle) override {}
    void bringToFront(WindowHandle) override {}
    std::optional<int> gdiObjects(WindowHandle) override { return std::nullopt; }
    bool open(const std::wstring&) override { return false; }
};

/// Exits of the selection window that lead nowhere.
struct NoExits : SelectionExits {
    void closeSplash() override {}
    void launchPass() override {}
    void showConfigurations() override {}
    void showAbout() override {}
};

/// The events of a window that nobody handles.
struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

/// What the program's windows need to run in this process: the real shell, but a CAD application
/// that answers at once.
class Stage {
 public:
    /// A CAD application that works in a directory, and a list file.
    explicit Stage(const std::wstring& workingDirectory = {}, const std::wstring& list = {});

 private:
    Entrance entrance_;
    AnsweringServers servers_;
    DesktopWithAll desktop_;
    Machine machine_{entrance_, servers_, desktop_};

 public:
    Platform& platform = machine_.platform;
    NoExits exits;
    ProgramFiles files;
    WindowPlaces places{platform.settings};
    CadSession cad{desktop_};
};

/// The control of this process with this id.
HWND controlOf(int id);

/// Draws what is due in this window and all its descendants.
void drawNow(HWND window);
