#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

class FatalErrors : public Scenario {
 protected:
    FatalErrors() { WriteListOf({"a.SLDPRT", "b.SLDPRT"}); }
};

TEST_F(FatalErrors, DocumentThatDoesNotOpen) {
    std::filesystem::remove(sandbox.Documents() / "a.SLDPRT");
    cad.Start();
    StartAndResume();
    ExpectFatalError(91);
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0", "0"}));
}

TEST_F(FatalErrors, CallThatTheCadSessionFails) {
    cad.Start({"--fail", "Save2"});
    StartAndResume();
    app.Click(IDC_FORM3_CMDSUIV);
    const std::string text = ExpectFatalError(440);
    EXPECT_NE(text.find("Save2"), std::string::npos) << "the session's own description: " << text;
}

TEST_F(FatalErrors, CadSessionThatDies) {
    cad.Start();
    StartAndResume();
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListOf({"3", "0"}));
    cad.Kill();
    app.Click(IDC_FORM3_CMDSUIV);
    ExpectFatalError(440);
    EXPECT_EQ(sandbox.ReadList(), ListOf({"3", "0"}));
}

}  // namespace
}  // namespace driver
