#include "driver/wait.h"
#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

class FatalErrors : public Scenario {
 protected:
    FatalErrors()
        : list(ListLine("0", sandbox.AddDocument("a.SLDPRT")) +
               ListLine("0", sandbox.AddDocument("b.SLDPRT"))) {
        sandbox.WriteList(list);
    }

    std::string list;
};

TEST_F(FatalErrors, DocumentThatDoesNotOpen) {
    std::filesystem::remove(sandbox.Documents() / "a.SLDPRT");
    cad.Start();
    StartAndResume();
    ExpectFatalError(91);
    EXPECT_EQ(sandbox.ReadList(), list);
}

TEST_F(FatalErrors, CallThatTheCadSessionFails) {
    cad.Start({"--fail", "Save2"});
    StartAndResume();
    app.Click(IDC_FORM3_CMDSUIV);
    const std::string text = ExpectFatalError(440);
    EXPECT_NE(text.find("Save2"), std::string::npos) << "the session's own description: " << text;
    EXPECT_EQ(sandbox.ReadList(), list);
}

TEST_F(FatalErrors, ListFileThatCannotBeWritten) {
    cad.Start();
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    std::filesystem::permissions(sandbox.ListFile(), std::filesystem::perms::owner_read);
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    const ModalBox box = app.Box();
    const bool denied = box.Text().find("'70'") != std::string::npos;
    ExpectFatalError(denied ? 70 : 75);
    EXPECT_EQ(sandbox.ReadList(), list);
}

TEST_F(FatalErrors, CadSessionThatHasGone) {
    cad.Start();
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");
    ExpectCalls(
        calls::Together({calls::AtStartUp(), calls::Open(sandbox.AddDocument("a.SLDPRT"))}));
    cad.Close();
    app.Click(IDC_FORM3_CMDSUIVSAUTER);
    ExpectFatalError(440);
    EXPECT_EQ(sandbox.ReadList(), list);
}

}  // namespace
}  // namespace driver
