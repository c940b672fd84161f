#include <iostream>

#include "demo/steps.h"
#include "driver/keys.h"
#include "driver/wait.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "tracking/tracking_ids.h"

namespace driver::demo {
namespace {

constexpr const char* kTracking = "Tarnwick - suivi du travail -";
constexpr const char* kDocumentShown = "ViewZoomtofit2";  // the last call of every opening

void PressAndShow(Stage& stage, int button) {
    stage.Press(button);
    stage.ShowCallsUpTo(kDocumentShown);
}

void SaveListAndLeave(Stage& stage) {
    stage.Tell("Saving the list and leaving");
    stage.Press(IDC_FORM3_CMDFICHIERLISTE);
    stage.Press(IDC_FORM3_CMDSORTIE);
    stage.app.WaitForExit();
    stage.ShowCallsUpTo("closedoc");
}

void AdvanceByKey(Stage& stage) {
    stage.Tell("Seen, by a key: the trial CAD session is in front, and stays there");
    stage.app.WaitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    Send(stage.app.Window(kTracking), WM_SYSCOMMAND, IDM_FORM3_TOUCHES);
    BringForward(stage.cad.Window());
    std::cout << "  Ctrl+Maj+2" << std::endl;
    PressKeys({VK_CONTROL, VK_SHIFT, '2'});
    stage.ShowCallsUpTo(kDocumentShown);
}

void PictureSystemMenu(Stage& stage) {
    stage.Tell("Opening the system menu");
    HWND window = stage.app.Window(kTracking);
    BringForward(window);
    PressKeys({VK_MENU, VK_SPACE});
    WaitFor("the menu", [] { return FindWindowW(L"#32768", nullptr) != nullptr; });
    stage.Picture("tracking-menu", window);
    PressKeys({VK_ESCAPE});
    WaitFor("the menu to close", [] { return FindWindowW(L"#32768", nullptr) == nullptr; });
}

void ExportReport(Stage& stage) {
    stage.Tell("Exporting the report");
    stage.app.ChooseInSystemMenu(kTracking, IDM_FORM3_RAPPORT);
    stage.app.SaveAsProposed("Exporter le rapport", "tarnwick-rapport.csv");
    stage.ShowFile("tarnwick-rapport.csv");
}

/// Both windows as a user has them, the tracking window in a corner of the screen.
void PictureBesideCad(Stage& stage) {
    HWND window = stage.app.Window(kTracking);
    const RECT place = PlaceOf(window);
    const int left = GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left);
    const int top = GetSystemMetrics(SM_CYSCREEN) - (place.bottom - place.top);
    SetForegroundWindow(stage.cad.Window());
    MoveTo(window, left, top);
    stage.Picture("tracking-beside-cad", window, stage.cad.Window());
    MoveTo(window, place.left, place.top);
}

}  // namespace

void PlayTrackingWindow(Stage& stage) {
    stage.ShowCallsUpTo(kDocumentShown);
    stage.ShowLines(IDC_FORM3_LIST1);
    stage.Picture("tracking", stage.app.Window(kTracking));

    stage.Tell("Done: saved, closed, and the next one opened");
    PressAndShow(stage, IDC_FORM3_CMDSUIV);
    AdvanceByKey(stage);
    stage.Tell("Skipped: it stays to do");
    PressAndShow(stage, IDC_FORM3_CMDSUIVSAUTER);
    stage.Tell("Back to the one that was skipped");
    PressAndShow(stage, IDC_FORM3_CMDPRECEDENT);
    stage.Tell("Done after all");
    PressAndShow(stage, IDC_FORM3_CMDSUIV);
    stage.ShowLines(IDC_FORM3_LIST1);
    stage.Picture("tracking-later", stage.app.Window(kTracking));
    PictureBesideCad(stage);
    PictureSystemMenu(stage);
    ExportReport(stage);
    stage.Picture("trial-cad", stage.cad.Window());
    SaveListAndLeave(stage);
}

void PlayResuming(Stage& stage) {
    stage.Tell("Starting again: the pass goes on where it stopped");
    stage.app.Start();
    stage.Picture("existing-list", stage.app.Window("Tarnwick  :  Message"));
    stage.Press(IDC_FORM2_CMDOK);
    stage.ShowCallsUpTo(kDocumentShown);
    stage.ShowLines(IDC_FORM3_LIST1);
    stage.Picture("tracking-resumed", stage.app.Window(kTracking));
    SaveListAndLeave(stage);
}

}  // namespace driver::demo
