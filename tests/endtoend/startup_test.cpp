#include "scenario.h"

namespace driver {
namespace {

class StartUp : public Scenario {};

TEST_F(StartUp, WithoutCadSessionShowsOneBoxAndEnds) {
    const std::string list = ListLine("0", "C:\\nulle part.SLDPRT");
    sandbox.WriteList(list);
    app.Start();

    const ModalBox box = app.Box();
    EXPECT_EQ(box.Title(), "Tarnwick by Mervale");
    EXPECT_EQ(box.Text(),
              " Une session SolidWorks doit être ouverte  \r\n"
              "   pour que Tarnwick puisse démarrer.");
    EXPECT_EQ(box.Buttons(), std::vector{IDOK});
    EXPECT_FALSE(box.HasIcon());
    box.Answer(IDOK);

    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_EQ(settings.Describe(), "");
    EXPECT_EQ(sandbox.ReadList(), list);
}

TEST_F(StartUp, RefusesAPositionThatIsNoNumber) {
    settings.Set("tarnwick", "startup", "toppos3", "haut");
    cad.Start();
    app.Start();
    ExpectFatalError(13);
    EXPECT_EQ(cad.Calls(), calls::Calls{});
}

}  // namespace
}  // namespace driver
