// The eight calls of one document, to the trial CAD session in its own process.

#include <windows.h>

#include "bare_document.h"
#include "cad/cad_session.h"
#include "driver/sandbox.h"
#include "driver/text.h"
#include "driver/trial_cad.h"
#include "rows.h"
#include "stage.h"
#include "win32/com/message_filter.h"
#include "win32/com/win_objects.h"

Row cadCalls(const Setting& setting) {
    const driver::Sandbox sandbox;
    driver::TrialCad trial(sandbox);
    trial.start({"--hidden"});
    const std::wstring path = driver::wide(sandbox.addDocument("piece.SLDPRT"));

    BareDocument bare(path);
    Entrance entrance;
    WinObjectServers servers;
    DesktopWithAll desktop;
    Machine machine(entrance, servers, desktop);
    MessageFilter filter(machine.patience);
    CadSession cad(desktop);
    require(cad.attach(machine.automation), "a running session");

    const auto subject = [&] {
        Remark remark;
        cad.open(path, {.silent = true, .rebuild = LoadingOptions::Rebuild::AllLevels}, remark);
        cad.bringForward();
        cad.save();
        cad.closeDocument();
        cad.forgetDocument();
    };
    const Comparison compared = compare(setting.rounds, {[&] { bare.eightCalls(); }}, {subject});
    return {.work = "the 8 CAD calls of one document",
            .floor = "bare Invoke, names looked up before",
            .ratios = {{0, compared.ratio}},
            .goal = "<= 1.05",
            .judged = compared.ratio,
            .limit = 1.05,
            .note = "floor " + milliseconds(compared.floorMilliseconds)};
}
