#include "stage.h"

#include "driver/winapi.h"
#include "setting.h"

Stage::Stage(const std::wstring& workingDirectory, const std::wstring& list)
    : servers_{workingDirectory}, files{L"", list, L""} {
    cad.attach(machine_.automation);
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
