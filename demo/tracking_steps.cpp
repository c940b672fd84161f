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

void pressAndShow(Stage& stage, int button) {
    stage.press(button);
    stage.showCallsUpTo(kDocumentShown);
}

void saveListAndLeave(Stage& stage) {
    stage.tell("Saving the list and leaving");
    stage.press(IDC_FORM3_CMDFICHIERLISTE);
    stage.press(IDC_FORM3_CMDSORTIE);
    stage.app.waitForExit();
    stage.showCallsUpTo("closedoc");
}

void advanceByKey(Stage& stage) {
    stage.tell("Seen, by a key: the trial CAD session is in front, and stays there");
    stage.app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    send(stage.app.window(kTracking), WM_SYSCOMMAND, IDM_FORM3_TOUCHES);
    bringForward(stage.cad.window());
    std::cout << "  Ctrl+Maj+2" << std::endl;
    pressKeys({VK_CONTROL, VK_SHIFT, '2'});
    stage.showCallsUpTo(kDocumentShown);
}

void pictureSystemMenu(Stage& stage) {
    stage.tell("Opening the system menu");
    HWND window = stage.app.window(kTracking);
    bringForward(window);
    pressKeys({VK_MENU, VK_SPACE});
    waitFor("the menu", [] { return FindWindowW(L"#32768", nullptr) != nullptr; });
    stage.picture("tracking-menu", window);
    pressKeys({VK_ESCAPE});
    waitFor("the menu to close", [] { return FindWindowW(L"#32768", nullptr) == nullptr; });
}

void exportReport(Stage& stage) {
    stage.tell("Exporting the report");
    stage.app.chooseInSystemMenu(kTracking, IDM_FORM3_RAPPORT);
    stage.app.saveAsProposed("Exporter le rapport", "tarnwick-rapport.csv");
    stage.showFile("tarnwick-rapport.csv");
}

/// Both windows as a user has them, the tracking window in a corner of the screen.
void pictureBesideCad(Stage& stage) {
    HWND window = stage.app.window(kTracking);
    const RECT place = placeOf(window);
    const int left = GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left);
    const int top = GetSystemMetrics(SM_CYSCREEN) - (place.bottom - place.top);
    SetForegroundWindow(stage.cad.window());
    moveTo(window, left, top);
    stage.picture("tracking-beside-cad", window, stage.cad.window());
    moveTo(window, place.left, place.top);
}

}  // namespace

void playTrackingWindow(Stage& stage) {
    stage.showCallsUpTo(kDocumentShown);
    stage.showLines(IDC_FORM3_LIST1);
    stage.picture("tracking", stage.app.window(kTracking));

    stage.tell("Done: saved, closed, and the next one opened");
    pressAndShow(stage, IDC_FORM3_CMDSUIV);
    advanceByKey(stage);
    stage.tell("Skipped: it stays to do");
    pressAndShow(stage, IDC_FORM3_CMDSUIVSAUTER);
    stage.tell("Back to the one that was skipped");
    pressAndShow(stage, IDC_FORM3_CMDPRECEDENT);
    stage.tell("Done after all");
    pressAndShow(stage, IDC_FORM3_CMDSUIV);
    stage.showLines(IDC_FORM3_LIST1);
    stage.picture("tracking-later", stage.app.window(kTracking));
    pictureBesideCad(stage);
    pictureSystemMenu(stage);
    exportReport(stage);
    stage.picture("trial-cad", stage.cad.window());
    saveListAndLeave(stage);
}

void playResuming(Stage& stage) {
    stage.tell("Starting again: the pass goes on where it stopped");
    stage.app.start();
    stage.picture("existing-list", stage.app.window("Tarnwick  :  Message"));
    stage.press(IDC_FORM2_CMDOK);
    stage.showCallsUpTo(kDocumentShown);
    stage.showLines(IDC_FORM3_LIST1);
    stage.picture("tracking-resumed", stage.app.window(kTracking));
    saveListAndLeave(stage);
}

}  // namespace driver::demo
