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

void exportReport(Stage& stage, const std::string& file) {
    stage.tell("Exporting the report");
    stage.app.chooseInSystemMenu(kTracking, IDM_FORM3_RAPPORT);
    stage.app.saveAsProposed("Exporter le rapport", file);
    stage.showFile(file);
}

/// A picture of both windows as users have them, the tracking window in a corner of the screen.
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

void answerRefusedSave(Stage& stage) {
    const ModalBox box = stage.app.box();
    stage.picture("tracking-not-saved", FindWindowW(L"#32770", L"Tarnwick"),
                  stage.app.window(kTracking));
    std::cout << box.text() << "\n  [Réessayer]" << std::endl;
    box.answer(IDRETRY);
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
    exportReport(stage, "tarnwick-rapport.csv");
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

std::string documentsThatSayNo() {
    return "Étau d'établi.SLDASM;error=2;warning=32\nMors fixe.SLDPRT;refuse=65536\n"
           "Mors mobile.SLDPRT;save=16:1\nVis de manœuvre.SLDPRT;open\n";
}

void playRefusals(Stage& stage) {
    stage.tell("Another list, of documents that the session refuses, with the marks for that");
    std::string list;
    for (const std::string& document : stage.documents)
        if (document.find("Étau d'établi\\") != document.npos) list += "0  " + document + "\r\n";
    writeFileBytes(stage.sandbox.directory() / "etau.lst", list);
    stage.app.start({"etau.lst"});
    stage.press(IDC_FORM2_CMDOK);
    stage.showCallsUpTo(kDocumentShown);
    for (const int item :
         {IDM_FORM3_PASSERREFUS, IDM_FORM3_GARDERNONSAUVE, IDM_FORM3_LAISSEROUVERTS})
        stage.app.chooseInSystemMenu(kTracking, item);
    stage.tell("Saved, though a component is missing; the next one does not open and is passed");
    pressAndShow(stage, IDC_FORM3_CMDSUIV);
    stage.tell("Not saved: tried again");
    stage.press(IDC_FORM3_CMDSUIV);
    answerRefusedSave(stage);
    stage.showCallsUpTo(kDocumentShown);
    stage.tell("The user had this one open: it stays open");
    pressAndShow(stage, IDC_FORM3_CMDSUIV);
    stage.showLines(IDC_FORM3_LIST1);
    exportReport(stage, "etau-rapport.csv");
    stage.picture("trial-cad-refusals", stage.cad.window());
    saveListAndLeave(stage);
}

}  // namespace driver::demo
