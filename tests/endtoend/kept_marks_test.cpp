// Marks outlive whatever ends the program.

#include "scenario.h"

namespace {

struct KeptMarks : Scenario {
    /// Starts again, says OUI, and says it again when so many marks are offered.
    void Resume(int count) {
        StartAndResume();
        const ModalBox box = app.Box();
        EXPECT_EQ(box.Title(), "Tarnwick");
        EXPECT_EQ(box.Text(),
                  "Le passage précédent s'est arrêté avant l'enregistrement de la liste."
                  "\r\nDocuments marqués depuis : " +
                      std::to_string(count) + "\r\nRetrouver ces marques ?");
        EXPECT_EQ(box.Buttons(), (std::vector{IDYES, IDNO}));
        EXPECT_EQ(box.DefaultButton(), IDYES);
        box.Answer(IDYES);
    }

    void ExpectInFatalError(const std::string& words) {
        const std::string text = ExpectFatalError(440);
        EXPECT_NE(text.find(words), std::string::npos) << text;
    }

    /// Waits until the document is open and the command that opened it has ended.
    void WaitUntilOpen(const std::string& path) const {
        app.WaitForText(IDC_FORM3_TXTETAT, path);
        app.Click(IDC_FORM3_CMDDESELECT);
        WaitFor("the next command", [this] { return app.Selected(IDC_FORM3_LIST1).empty(); });
    }
};

TEST_F(KeptMarks, AreOfferedAfterAKillAndAfterTheSessionDied) {
    WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"});
    cad.Start();
    StartAndResume();
    app.Click(IDC_FORM3_CMDSUIV);
    WaitUntilOpen(paths[1]);
    // As the Explorer would: nobody takes the record away while marks are added to it.
    const auto record = sandbox.Directory() / "tarnwick.reprise";
    std::error_code refused;
    EXPECT_FALSE(std::filesystem::remove(record, refused));
    std::filesystem::rename(record, sandbox.Directory() / "autre", refused);
    EXPECT_TRUE(refused);
    app.Kill();
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0", "0", "0", "0"}));

    Resume(1);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[1]);
    ExpectLines(IDC_FORM3_LIST1, {"0001  " + kDone + paths[0], "0002  " + kInProgress + paths[1],
                                  "0003  " + kToDo + paths[2], "0004  " + kToDo + paths[3]});
    app.Click(IDC_FORM3_CMDSUIVQUITTER);
    WaitUntilOpen(paths[2]);
    cad.Kill();
    app.Click(IDC_FORM3_CMDSUIV);
    ExpectInFatalError("Document : " + paths[2] + "\r\nLes marques");

    cad.Start({"--fail", "Save2"});
    Resume(2);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[2]);
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"1", "2", "3", "0"}));
    WaitFor("the marks to be forgotten", [&] { return std::filesystem::file_size(record) == 0; });
    app.Click(IDC_FORM3_CMDSUIV);
    ExpectInFatalError("Save2");  // the session's own description
    EXPECT_FALSE(std::filesystem::exists(record));
}

}  // namespace
