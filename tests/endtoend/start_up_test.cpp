#include "scenario.h"

namespace {

using StartUp = Scenario;

TEST_F(StartUp, WithoutCadSessionShowsOneBoxAndEnds) {
    WriteListOf({"a.SLDPRT"});
    app.Start();
    const ModalBox box = app.Box();
    EXPECT_EQ(box.Title(), "Tarnwick by Mervale");
    EXPECT_EQ(box.Text(),
              " Une session SolidWorks doit être ouverte  \r\n"
              "   pour que Tarnwick puisse démarrer.");
    EXPECT_EQ(box.Buttons(), std::vector{IDOK});
    EXPECT_FALSE(box.HasIcon());
    box.Answer(IDOK);
    ExpectEnd();
    EXPECT_EQ(settings.Describe(), "");
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0"}));
}

}  // namespace
