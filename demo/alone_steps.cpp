#include <iostream>

#include "demo/steps.h"
#include "driver/keys.h"
#include "driver/text.h"
#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "tracking/tracking_ids.h"

namespace driver::demo {
namespace {

constexpr const char* kTracking = "Tarnwick - suivi du travail -";
constexpr size_t kDocuments = 10;

/// Starts a session that is slow enough to watch, and refuses something of two documents.
void startRefusingSession(Stage& stage) {
    const auto script = stage.sandbox.directory() / "seul.txt";
    writeFileBytes(script,
                   stage.documents[3] + ";refuse=65536\n" + stage.documents[6] + ";save=16\n");
    stage.cad.start({"--working-directory", utf8(stage.sandbox.documents().wstring()),
                     "--documents", utf8(script.wstring()), "--delay", "OpenDoc6:1000"});
}

void startOnTenDocuments(Stage& stage) {
    std::string list;
    for (size_t i = 0; i < kDocuments; ++i) list += "0  " + stage.documents[i] + "\r\n";
    writeFileBytes(stage.sandbox.directory() / "seul.lst", list);
    stage.app.start({"seul.lst"});
    stage.press(IDC_FORM2_CMDOK);
    stage.app.waitForText(IDC_FORM3_TXTETAT, stage.documents[0]);
}

void answer(Stage& stage, int button, const char* caption) {
    const ModalBox box = stage.app.box();
    std::cout << box.text() << "\n  [" << caption << "]" << std::endl;
    box.answer(button);
}

}  // namespace

void playAlone(Stage& stage) {
    stage.tell(
        "Ten documents alone, in another session, which refuses one and does not save another");
    startRefusingSession(stage);
    startOnTenDocuments(stage);
    stage.app.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
    answer(stage, IDYES, "Oui");
    stage.app.waitForText(IDC_FORM3_NBFICH1, "3");
    stage.picture("tracking-alone", stage.app.window("Tarnwick - Continuer seul"),
                  stage.cad.window());
    answer(stage, IDOK, "OK");
    stage.showLines(IDC_FORM3_LIST1);

    stage.tell("The last mark undone, by a key");
    stage.app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    bringForward(stage.app.window(kTracking));
    pressKeys({VK_CONTROL, 'Z'});
    stage.app.waitForText(IDC_FORM3_TXTETAT, stage.documents[kDocuments - 1]);
    stage.showLines(IDC_FORM3_LIST1);
    stage.press(IDC_FORM3_CMDSORTIE);
    stage.app.waitForExit();
    stage.cad.close();
}

}  // namespace driver::demo
