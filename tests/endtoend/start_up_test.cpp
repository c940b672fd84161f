#include "driver/winapi.h"
#include "resume/existing_list_ids.h"
#include "scenario.h"

namespace driver {
namespace {

class StartUp : public Scenario {
 protected:
    StartUp() { WriteListOf({"a.SLDPRT"}); }
};

TEST_F(StartUp, WithoutCadSessionShowsOneBoxAndEnds) {
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
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0"}));
}

TEST_F(StartUp, KeepsAnOldListOnNoAndErasesItOnRequest) {
    cad.Start();
    app.Start();
    EXPECT_EQ(app.TextOf(IDC_FORM2_LABEL1), "Un fichier LISTE  existe déja");
    app.Click(IDC_FORM2_CMDANNULE);
    ExpectAlone(kSelection);
    EXPECT_EQ(sandbox.ReadList(), ListOf({"0"}));
    app.CloseByFrame(kSelection);
    EXPECT_EQ(app.WaitForExit(), 0);

    std::filesystem::permissions(sandbox.ListFile(), std::filesystem::perms::owner_read);
    app.Start();
    app.Click(IDC_FORM2_CMDEFFACER);
    ExpectAlone(kSelection);
    EXPECT_EQ(sandbox.ReadList(), std::nullopt);
    EXPECT_EQ(ReadFileBytes(sandbox.Directory() / "tarnwick-precedente.lst"), ListOf({"0"}));
}

}  // namespace
}  // namespace driver
