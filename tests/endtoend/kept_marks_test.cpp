// Marks outlive whatever ends the program.

#include "scenario.h"

struct KeptMarks : Scenario {
    /// Starts again, says OUI, and says it again when so many marks are offered.
    void resumeWith(int marks) {
        startAndResume();
        const ModalBox box = app.box();
        EXPECT_EQ(box.title(), "Tarnwick");
        EXPECT_NE(
            box.text().find("\r\nDocuments marqués depuis : " + std::to_string(marks) + "\r\n"),
            std::string::npos);
        EXPECT_EQ(box.buttons(), (std::vector{IDYES, IDNO}));
        EXPECT_EQ(box.defaultButton(), IDYES);
        box.answer(IDYES);
    }

    void expectInFatalError(const std::string& words) {
        const std::string text = expectFatalError(440);
        EXPECT_NE(text.find(words), std::string::npos) << text;
    }
};

TEST_F(KeptMarks, AreOfferedAfterAKillAndAfterTheSessionDied) {
    resume({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"}, {});
    app.click(IDC_FORM3_CMDSUIV);
    waitUntilOpen(paths[1]);
    // As the Explorer would: nobody takes the record away while marks are added to it.
    const auto record = sandbox.directory() / "tarnwick.reprise";
    std::error_code refused;
    EXPECT_FALSE(std::filesystem::remove(record, refused));
    std::filesystem::rename(record, sandbox.directory() / "autre", refused);
    EXPECT_TRUE(refused);
    app.kill();
    EXPECT_EQ(sandbox.readList(), listOf({"0", "0", "0", "0"}));

    // A list that is taken away takes its marks with it.
    app.start();
    app.click(IDC_FORM2_CMDEFFACER);
    expectEnd(kSelection);
    for (const std::string ending : {".lst", ".reprise"}) {
        std::filesystem::rename(sandbox.directory() / ("tarnwick-precedente" + ending),
                                sandbox.directory() / ("tarnwick" + ending));
    }

    resumeWith(1);
    waitUntilOpen(paths[1]);
    app.click(IDC_FORM3_CMDSUIVQUITTER);
    waitUntilOpen(paths[2]);
    cad.kill();
    app.click(IDC_FORM3_CMDSUIV);
    expectInFatalError("Document : " + paths[2] + "\r\nLes marques");

    cad.start({"--fail", "Save2"});
    resumeWith(2);
    app.waitForText(IDC_FORM3_TXTETAT, paths[2]);
    app.click(IDC_FORM3_CMDFICHIERLISTE);
    expectList(listOf({"1", "2", "3", "0"}));
    waitFor("the marks to be forgotten", [&] { return std::filesystem::file_size(record) == 0; });
    app.click(IDC_FORM3_CMDSUIV);
    expectInFatalError("Save2");  // the session's own description
    EXPECT_FALSE(std::filesystem::exists(record));
}
