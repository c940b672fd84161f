#pragma once

#include <windows.h>

#include <memory>

#include "answering_cad.h"
#include "app/module1.h"
#include "platform/desktop.h"
#include "platform/platform.h"
#include "platform/win32/files/win_files.h"
#include "platform/win32/process/registry_settings.h"
#include "platform/win32/window/dialog_window.h"
#include "platform/win32/window/event_gate.h"
#include "platform/win32/window/input_sieve.h"
#include "platform/win32/window/win_message_boxes.h"
#include "session/navigation.h"

/// A desktop where every window is found.
struct DesktopWithAll : Desktop {
    WindowHandle findWindow(const std::wstring&) override { return 1; }
    void bringToFront(WindowHandle) override {}
};

/// The ways between windows, none of which is taken.
struct NoNavigation : Navigation {
    void ChargerForm1() override {}
    void ChargerForm2() override {}
    void ChargerForm3() override {}
    void ChargerForm4() override {}
    void ChargerAPropos() override {}
    void FermerAPropos() override {}
};

/// For a window without a form.
struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

/// What the program's windows need to live in this process: the real shell, but a CAD application
/// that answers at once.
class Stage {
 public:
    Stage();

    Module1 module;
    NoNavigation navigation;

 private:
    InputSieve sieve_;
    EventGate gate_;
    DialogFactory windows_;
    AnsweringAutomation automation_;
    RegistrySettings settings_;
    WinFiles files_;
    WinMessageBoxes messageBoxes_;
    DesktopWithAll desktop_;

 public:
    Platform platform;
};

/// The control of this process with this id.
HWND controlOf(int id);

/// Draws, in this window and all below it, what is due.
void drawNow(HWND window);
