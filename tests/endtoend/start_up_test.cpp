#include "scenario.h"

namespace {

using StartUp = Scenario;

TEST_F(StartUp, WithoutCadSessionShowsOneBoxAndEnds) {
    writeListOf({"a.SLDPRT"});
    app.start();
    const ModalBox box = app.box();
    EXPECT_EQ(box.title(), "Tarnwick by Mervale");
    EXPECT_EQ(box.text(),
              " Une session SolidWorks doit être ouverte  \r\n"
              "   pour que Tarnwick puisse démarrer.");
    EXPECT_EQ(box.buttons(), std::vector{IDOK});
    EXPECT_FALSE(box.hasIcon());
    box.answer(IDOK);
    expectEnd();
    EXPECT_EQ(settings.describe(), "");
    EXPECT_EQ(sandbox.readList(), listOf({"0"}));
}

}  // namespace
