#include <windows.h>

#include <commctrl.h>
#include <cstdlib>
#include <objbase.h>
#include <optional>

#include "app/machine.h"
#include "app/program.h"
#include "win32/com/message_filter.h"
#include "win32/com/win_objects.h"
#include "win32/process/require.h"
#include "win32/window/message_loop.h"
#include "win32/window/win_desktop.h"

namespace {

/// COM for the thread, as long as it lives.
struct Apartment {
    Apartment() {
        requireSuccess(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), L"l'accès à COM");
    }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

/// The program on the machine it runs on.
struct RunningProgram {
    explicit RunningProgram(Entrance& entrance)
        : machine(entrance, servers, desktop, [this] {
              const Platform& platform = machine.platform;
              showGuide(platform.files, desktop, platform.messageBoxes, platform.programDirectory);
          }) {
        machine.patience.promiseMarksWhen([this] { return program.keepsMarks(); });
    }

    Apartment apartment;
    WinObjectServers servers;
    WinDesktop desktop;
    Machine machine;
    MessageFilter filter{machine.patience};
    Program program{machine.platform};
};

}  // namespace

// Every exception is caught at the event gate. The library's own handler would print the name of a
// stray one, and needs a demangler and formatted output for that: a fifth of the program.
namespace __gnu_cxx {
void __verbose_terminate_handler() { std::abort(); }
}  // namespace __gnu_cxx

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    SetErrorMode(SEM_FAILCRITICALERRORS);
    INITCOMMONCONTROLSEX controls{sizeof controls,
                                  ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    Entrance entrance;
    std::optional<RunningProgram> running;
    entrance.gate.run([&] {
        running.emplace(entrance);
        running->program.start();
    });
    return entrance.gate.ended() ? entrance.gate.exitCode() : runMessageLoop(entrance.judge);
}
