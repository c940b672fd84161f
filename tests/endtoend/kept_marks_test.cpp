// Marks outlive whatever ends the program.

#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

const std::string kMarked =
    "Le passage précédent s'est arrêté avant l'enregistrement de la liste.\r\nDocuments marqués "
    "depuis : ";

class KeptMarks : public Scenario {
 protected:
    void WaitUntilForgotten() const {
        WaitFor("the marks to be forgotten", [this] { return !RecordThere(); });
    }
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
    WaitUntilForgotten();
}

TEST_F(KeptMarks, ADocumentThatStopsTheProgramCanBePassed) {
    WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT"});
    std::filesystem::remove(paths[0]);
    cad.Start({"--fail", "Save2"});
    StartAndResume();
    ExpectFatalError(91);
    EXPECT_TRUE(RecordThere());
    Resume("Tarnwick s'est arrêté pendant l'ouverture de :\r\n" + paths[0] +
               "\r\nPasser au document suivant ?",
           IDYES);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    app.Click(IDC_FORM3_CMDSUIV);
    const std::string text = ExpectFatalError(440);
    EXPECT_NE(text.find("Save2"), std::string::npos) << "the session's own description: " << text;
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0", "0", "0"}));
}

}  // namespace
}  // namespace driver
