#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <optional>

#include "app/guide.h"
#include "app/program.h"
#include "input/event_gate.h"
#include "ports/platform.h"
#include "rules/late_binding.h"
#include "rules/patience.h"
#include "win32/com/message_filter.h"
#include "win32/com/win_objects.h"
#include "win32/files/win_files.h"
#include "win32/files/win_record_files.h"
#include "win32/process/require.h"
#include "win32/process/win_list_holds.h"
#include "win32/process/win_machine.h"
#include "win32/window/dialog_window.h"
#include "win32/window/input_sieve.h"
#include "win32/window/message_loop.h"
#include "win32/window/win_busy_waiting.h"
#include "win32/window/win_desktop.h"
#include "win32/window/win_file_dialogs.h"
#include "win32/window/win_gate_keeper.h"
#include "win32/window/win_message_boxes.h"
#include "win32/window/window_patience.h"

namespace {

std::wstring programDirectory() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = 0;
    while ((length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) ==
           path.size()) {
        path.resize(path.size() * 2);
    }
    path.resize(length);
    return path.substr(0, path.find_last_of(L'\\'));
}

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
    RunningProgram(EventGate& gate, MessageBoxes& boxes, Judge& theJudge)
        : judge(theJudge),
          messageBoxes(boxes),
          windows(gate, [this] { showGuide(files, desktop, messageBoxes, programDirectory()); }) {
        patience.promiseMarksWhen([this] { return program.keepsMarks(); });
    }

    Apartment apartment;
    Judge& judge;
    MessageBoxes& messageBoxes;
    WinBusyWaiting waiting{judge};
    Patience patience{waiting, messageBoxes, judge};
    WinObjectServers servers;
    LateBoundAutomation automation{servers, patience};
    RegistrySettings settings;
    // Readers that wait for a server which does not answer outlive all that is ours.
    WinFiles& files = *new WinFiles;
    PoolWorkers workers;
    WinRecordFiles records;
    WinListHolds listHolds{files};
    WinClock clock;
    WinFileDialogs fileDialogs{judge};
    WinDesktop desktop;
    WinPower power;
    DialogFactory windows;
    InputSieve sieve{judge};
    WindowPatience searchPatience{judge};
    MessageFilter filter{patience};
    Program program{{automation,
                     settings,
                     files,
                     records,
                     listHolds,
                     clock,
                     messageBoxes,
                     fileDialogs,
                     desktop,
                     power,
                     windows,
                     {files, workers, searchPatience},
                     programDirectory(),
                     namedFiles()}};
};

}  // namespace

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) {
    SetErrorMode(SEM_FAILCRITICALERRORS);
    INITCOMMONCONTROLSEX controls{sizeof controls,
                                  ICC_STANDARD_CLASSES | ICC_TAB_CLASSES | ICC_PROGRESS_CLASS};
    InitCommonControlsEx(&controls);
    Judge judge(doubleClickLimits(), [] { return Moment{GetTickCount64()}; });
    WinGateKeeper keeper(judge);
    WinMessageBoxes boxes(judge);
    EventGate gate(keeper, boxes, judge);
    std::optional<RunningProgram> running;
    gate.run([&] {
        running.emplace(gate, boxes, judge);
        running->program.start();
    });
    return gate.ended() ? gate.exitCode() : runMessageLoop(judge);
}
