// Marks outlive whatever ends the program.

#include <cstdlib>
#include <iostream>
#include <random>

#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "scenario.h"
#include "selection/selection_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

const std::string kMarked =
    "Le passage précédent s'est arrêté avant l'enregistrement de la liste.\r\nDocuments marqués "
    "depuis : ";

class KeptMarks : public Scenario {
 protected:
    bool RecordThere() const {
        return std::filesystem::exists(sandbox.Directory() / "tarnwick.reprise");
    }

    /// Starts again, says OUI, and answers the box that is to come.
    void Resume(const std::string& expected, int answer) {
        StartAndResume();
        const ModalBox box = app.Box();
        EXPECT_EQ(box.Title(), "Tarnwick");
        EXPECT_EQ(box.Text(), expected);
        EXPECT_EQ(box.Buttons(), (std::vector{IDYES, IDNO}));
        EXPECT_EQ(box.DefaultButton(), IDYES);
        box.Answer(answer);
    }

    /// Waits until the document is open and the command that opened it has ended.
    void WaitUntilOpen(const std::string& path) const {
        app.WaitForText(IDC_FORM3_TXTETAT, path);
        app.Click(IDC_FORM3_CMDDESELECT);
        WaitFor("the next command", [this] { return app.Selected(IDC_FORM3_LIST1).empty(); });
    }

    std::string Marked(int count) const {
        return kMarked + std::to_string(count) + "\r\nRetrouver ces marques ?";
    }
};

TEST_F(KeptMarks, AreOfferedAfterAKillAndAfterTheSessionDied) {
    WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"});
    cad.Start();
    StartAndResume();
    app.Click(IDC_FORM3_CMDSUIV);
    WaitUntilOpen(paths[1]);
    app.Kill();
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0", "0", "0", "0"}));

    Resume(Marked(1), IDYES);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    ExpectLines(IDC_FORM3_LIST1, {"0001  " + kDone + paths[0], "0002  " + kInProgress + paths[1],
                                  "0003  " + kToDo + paths[2], "0004  " + kToDo + paths[3]});
    app.Click(IDC_FORM3_CMDSUIVQUITTER);
    WaitUntilOpen(paths[2]);
    cad.Kill();
    app.Click(IDC_FORM3_CMDSUIV);
    const std::string text = ExpectFatalError(440);
    EXPECT_NE(text.find("Document : " + paths[2]), std::string::npos) << text;
    EXPECT_NE(text.find("proposées au prochain démarrage"), std::string::npos) << text;

    cad.Start();
    Resume(Marked(2), IDYES);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[2]);
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"1", "2", "3", "0"}));
    EXPECT_FALSE(RecordThere());
}

TEST_F(KeptMarks, AreForgottenByNoAndByALaunch) {
    WriteListOf({"a.SLDDRW", "b.SLDDRW"});
    cad.Start({"--working-directory", sandbox.Documents().string()});
    StartAndResume();
    app.Click(IDC_FORM3_CMDSUIV);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    app.CloseByFrame(kTracking);
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_TRUE(RecordThere());
    Resume(Marked(1), IDNO);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[0]);
    app.Click(IDC_FORM3_CMDSUIV);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    app.CloseByFrame(kTracking);
    EXPECT_EQ(app.WaitForExit(), 0);

    // The same list launched anew has the same bytes, but no marks.
    app.Start();
    app.Click(IDC_FORM2_CMDANNULE);
    app.WaitForText(IDC_FORM1_CPTFICHIER, "2");
    app.Click(IDC_FORM1_CMD_INV);
    app.Click(IDC_FORM1_CMD_TRACER);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[0]);
    app.Window(kTracking);
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0", "0"}));
    app.CloseByFrame(kTracking);
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_FALSE(RecordThere());
}

TEST_F(KeptMarks, ADocumentThatStopsTheProgramCanBePassed) {
    WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT"});
    cad.Start({"--fail", "ActivateDoc2:1"});
    StartAndResume();
    ExpectFatalError(440);
    EXPECT_TRUE(RecordThere());
    Resume("Tarnwick s'est arrêté pendant l'ouverture de :\r\n" + paths[0] +
               "\r\nPasser au document suivant ?",
           IDYES);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"0", "3", "0"}));
}

/// TARNWICK_KILLS in the environment: so many kills at random moments of a running pass.
class Kills : public KeptMarks {
 protected:
    /// How many documents the session has closed before another call came in: their marks were
    /// made before a call that went out.
    size_t CertainMarks() const {
        const auto calls = cad.Calls();
        size_t marks = 0;
        for (size_t i = callsSeen; i + 1 < calls.size(); ++i) {
            const bool closed = calls[i].find("Close") == 0 || calls[i].find("closedoc") == 0;
            marks += closed && calls[i + 1].find("OpenDoc6") == 0;
        }
        callsSeen = calls.size();
        return marks;
    }

    mutable size_t callsSeen = 0;
};

TEST_F(Kills, LoseNoMarkMadeBeforeTheLastFinishedCall) {
    const char* wanted = std::getenv("TARNWICK_KILLS");
    const int kills = wanted ? std::atoi(wanted) : 0;
    std::vector<std::string> names;
    for (int i = 0; i < 200; ++i) names.push_back(std::to_string(i) + ".SLDPRT");
    std::mt19937 random(1);
    size_t marks = 0;
    size_t offered = 0;
    int lost = 0;
    int failedStarts = 0;
    for (int kill = 0; kill < kills; ++kill) {
        if (kill % 50 == 0) {
            if (kill > 0) cad.Close();
            WriteListOf(kill == 0 ? names : std::vector<std::string>());
            sandbox.WriteList(ListOf(std::vector<std::string>(names.size(), "0")));
            cad.Start({"--hidden"});
            callsSeen = marks = offered = 0;
        }
        app.Start();
        app.Click(IDC_FORM2_CMDOK);
        offered = 0;
        WaitFor("a box or the first document", [this] {
            return app.ShowsBox() || cad.Calls().size() > callsSeen + 3 || !app.Running();
        });
        while (app.ShowsBox()) {
            const std::string text = app.Box().Text();
            if (text.find(kMarked) == 0) offered = std::stoul(text.substr(kMarked.size()));
            app.Box().Answer(IDYES);
            Sleep(30);
        }
        if (!app.Running()) ++failedStarts;
        if (offered < marks) lost += static_cast<int>(marks - offered);
        if (offered < marks)
            std::cout << "kill " << kill << ": " << offered << " of " << marks << std::endl;
        marks = offered;
        HWND button = app.Control(IDC_FORM3_CMDSUIV);
        const ULONGLONG end = GetTickCount64() + random() % 400;
        while (GetTickCount64() < end) {
            Post(button, BM_CLICK);
            Sleep(static_cast<DWORD>(random() % 25));
        }
        app.Kill();
        marks += CertainMarks();
    }
    std::cout << kills << " kills: " << lost << " marks lost, " << failedStarts
              << " starts failed\n";
    EXPECT_EQ(lost, 0);
    EXPECT_EQ(failedStarts, 0);
}

}  // namespace
}  // namespace driver
