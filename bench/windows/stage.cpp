#include "stage.h"

#include "driver/winapi.h"
#include "setting.h"

Stage::Stage(const std::wstring& workingDirectory, const std::wstring& list)
    : windows_(gate_),
      automation_{workingDirectory},
      platform{automation_, settings_, files_,        records_,
               listHolds_,  clock_,    messageBoxes_, fileDialogs_,
               desktop_,    power_,    windows_,      {files_, workers_, patience_},
               L""},
      files{L"", list, L""} {
    cad.attach(automation_);
    cad.identify();
}

HWND controlOf(int id) {
    for (HWND window : driver::topLevelWindows(GetCurrentProcessId())) {
        if (HWND control = driver::descendant(window, id)) return control;
    }
    require(false, "a control of the program");
    return nullptr;
}

void drawNow(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ERASENOW | RDW_ALLCHILDREN);
}
