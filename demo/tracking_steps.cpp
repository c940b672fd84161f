#include "demo/steps.h"
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

}  // namespace

void PlayTrackingWindow(Stage& stage) {
    stage.ShowCallsUpTo(kDocumentShown);
    stage.ShowLines(IDC_FORM3_LIST1);
    stage.Picture("tracking", stage.app.Window(kTracking));

    stage.Tell("Done: saved, closed, and the next one opened");
    PressAndShow(stage, IDC_FORM3_CMDSUIV);
    stage.Tell("Seen: closed without saving");
    PressAndShow(stage, IDC_FORM3_CMDSUIVQUITTER);
    stage.Tell("Skipped: it stays to do");
    PressAndShow(stage, IDC_FORM3_CMDSUIVSAUTER);
    stage.Tell("Back to the one that was skipped");
    PressAndShow(stage, IDC_FORM3_CMDPRECEDENT);
    stage.Tell("Done after all");
    PressAndShow(stage, IDC_FORM3_CMDSUIV);
    stage.ShowLines(IDC_FORM3_LIST1);
    stage.Picture("tracking-later", stage.app.Window(kTracking));
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
