#include "driver/wait.h"
#include "resume/existing_list_ids.h"
#include "scenario.h"

namespace driver {
namespace {

constexpr const char* kPrompt = "Tarnwick  :  Message";
const std::vector<std::string> kSelectionOnly{"Mervale 2002 - Tarnwick"};

class ExistingList : public Scenario {
 protected:
    ExistingList() : list(ListLine("0", sandbox.AddDocument("a.SLDPRT"))) {
        sandbox.WriteList(list);
        cad.Start();
        app.Start();
        app.Window(kPrompt);
    }

    void ExpectSelectionWindow() const {
        EXPECT_EQ(Eventually<std::vector<std::string>>(kSelectionOnly,
                                                       [this] { return app.ShownWindows(); }),
                  kSelectionOnly);
    }

    std::string list;
};

TEST_F(ExistingList, IsKeptOnNoAndAskedAboutAgainAtTheSamePlace) {
    EXPECT_EQ(app.TextOf(IDC_FORM2_LABEL1), "Un fichier LISTE  existe déja");
    EXPECT_EQ(app.TextOf(IDC_FORM2_LABEL2), "Voulez vous utiliser ce fichier ?");
    EXPECT_EQ(app.TextOf(IDC_FORM2_CMDOK), "OUI");
    SetWindowPos(app.Window(kPrompt), nullptr, 300, 150, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    app.Click(IDC_FORM2_CMDANNULE);
    ExpectSelectionWindow();
    EXPECT_EQ(sandbox.ReadList(), list);
    EXPECT_EQ(settings.Get("tarnwick", "startup", "leftpos2"), "4500");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "toppos2"), "2250");
    app.CloseByFrame(kSelectionOnly.front());
    EXPECT_EQ(app.WaitForExit(), 0);

    app.Start();
    RECT place;
    GetWindowRect(app.Window(kPrompt), &place);
    EXPECT_NEAR(place.left, 300, 1);
    EXPECT_NEAR(place.top, 150, 1);
    app.CloseByFrame(kPrompt);
    EXPECT_EQ(app.WaitForExit(), 0);
}

TEST_F(ExistingList, IsErasedEvenWhenReadOnly) {
    std::filesystem::permissions(sandbox.ListFile(), std::filesystem::perms::owner_read);
    app.Click(IDC_FORM2_CMDEFFACER);
    ExpectSelectionWindow();
    EXPECT_EQ(sandbox.ReadList(), std::nullopt);
}

TEST_F(ExistingList, ThatVanishedMeanwhileIsAnError) {
    std::filesystem::remove(sandbox.ListFile());
    app.Click(IDC_FORM2_CMDOK);
    ExpectFatalError(53);

    sandbox.WriteList(list);
    app.Start();
    app.Window(kPrompt);
    std::filesystem::remove(sandbox.ListFile());
    app.Click(IDC_FORM2_CMDEFFACER);
    ExpectFatalError(53);
}

}  // namespace
}  // namespace driver
