#include <windows.h>

#include <commctrl.h>

#include "driver/text.h"
#include "driver/tooltip.h"
#include "driver/wait.h"
#include "driver/winapi.h"
#include "scenario.h"
#include "searchfolders/configuration_ids.h"
#include "selection/selection_ids.h"

namespace driver {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kSelection = "Mervale 2002 - Tarnwick";
constexpr const char* kConfigurations =
    "Mervale 2002-2003     Gestion des répertoires de recherche";

class SearchFolders : public Scenario {
 protected:
    SearchFolders() {
        sandbox.AddDocument("Bâti\\Brides\\Bride.SLDPRT");
        sandbox.AddDocument("Visserie\\Écrou.SLDPRT");
        cad.Start({"--hidden", "--search-folders", "C:\\Normes;C:\\Profilés"});
        app.Start();
        app.Window(kSelection);
        ExpectCalls(calls::AtStartUp());
        OpenConfigurations();
    }

    void OpenConfigurations() {
        app.Click(IDC_FORM1_CMDREPDEF);
        app.Window(kConfigurations);
        ExpectCalls({"GetSearchFolders(0:i4)"});
    }

    void ExpectLines(int list, const Lines& lines) const {
        EXPECT_EQ(Eventually<Lines>(lines, [&] { return app.Lines(list); }), lines);
    }

    std::string Documents() const { return Utf8(sandbox.Documents().wstring()); }
};

TEST_F(SearchFolders, AreCreatedSavedAppliedAndFoundAgain) {
    ExpectLines(IDC_FORM4_LIST1, {"En Cours"});
    EXPECT_TRUE(app.Selected(IDC_FORM4_LIST1).empty());
    ExpectLines(IDC_FORM4_LIST3, {"C:\\Normes", "C:\\Profilés"});

    app.Click(IDC_FORM4_CMDCREER);
    app.Open(IDC_FORM4_DIR1, "documents");
    app.Click(IDC_FORM4_CMDAJO2);
    app.WaitForText(IDC_FORM4_CPT_REP, "4");
    const Lines tree{Documents(), Documents() + "\\Bâti", Documents() + "\\Bâti\\Brides",
                     Documents() + "\\Visserie"};
    ExpectLines(IDC_FORM4_LIST2, tree);
    app.Select(IDC_FORM4_LIST2, {1});
    app.Click(IDC_FORM4_CMDRETIR2);
    app.WaitForText(IDC_FORM4_CPT_REP, "2");
    app.Type(IDC_FORM4_NOMDELACONF, "Chaîne n°1");
    app.WaitForText(IDC_FORM4_NOMDELACONF, "Chaîne n°1");
    app.Click(IDC_FORM4_CMDVALIDER);
    ExpectLines(IDC_FORM4_LIST1, {"En Cours", "Chaîne n°1"});
    ExpectLines(IDC_FORM4_LIST3, {tree[0], tree[3]});

    app.Click(IDC_FORM4_CMDENREGISTER);
    app.Click(IDC_FORM4_CMDCHOISIR);
    const ModalBox box = app.Box();
    EXPECT_EQ(box.Title(), "Réglages SOLIDWORKS réussie");
    EXPECT_EQ(box.Text(), "les répertoires de recherche de SOLIDWORKS ont été changés !");
    EXPECT_FALSE(box.HasIcon());
    box.Answer(IDOK);
    const std::string folders = tree[0] + ";" + tree[3];
    ExpectCalls({"setsearchfolders(0:i4, &\"" + folders + "\")"});
    EXPECT_EQ(sandbox.ReadConfigurations().value_or(""),
              "Configuration:  Chaîne n°1\r\n   " + tree[0] + "\r\n   " + tree[3] + "\r\n");

    SetWindowPos(app.Window(kConfigurations), nullptr, 90, 60, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    app.Click(IDC_FORM4_CMDANNULER);
    EXPECT_EQ(Eventually<Lines>({kSelection}, [this] { return app.ShownWindows(); }),
              Lines{kSelection});
    EXPECT_EQ(settings.Get("mervale", "listerepert", "leftpos4"), "1350");
    OpenConfigurations();
    ExpectLines(IDC_FORM4_LIST1, {"En Cours", "Chaîne n°1"});
    app.Select(IDC_FORM4_LIST1, {0});
    ExpectLines(IDC_FORM4_LIST3, {tree[0], tree[3]});
}

TEST_F(SearchFolders, ShowOnePageAtATimeWithItsTexts) {
    RECT frame{};
    GetWindowRect(app.Window(kConfigurations), &frame);
    EXPECT_NEAR(frame.right - frame.left, 13600 / 15, 1);
    EXPECT_NEAR(frame.bottom - frame.top, 6200 / 15, 1);
    EXPECT_EQ(app.TextOf(IDC_FORM4_FRATAB0),
              "Configuration Courante de Répertoires de chemin de Recherche  . ");
    EXPECT_EQ(app.TextOf(IDC_FORM4_FRATAB1),
              "Gestion des Configurations de Répertoires de chemin de Recherche  . ");
    EXPECT_EQ(app.TextOf(IDC_FORM4_LABEL4),
              "\"En Cours\" correspond à la configuration actuelle de SolidWorks");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM4_CMDCREER)), "Créer une nouvelle configuration.  ");
    EXPECT_EQ(ToolTipOf(app.Control(IDC_FORM4_NNIV)), "Nombre de niveau masqués.");

    EXPECT_TRUE(app.Visible(IDC_FORM4_LIST1));
    EXPECT_FALSE(app.Visible(IDC_FORM4_LIST2));
    Post(app.Control(IDC_FORM4_TABSTRIP1), TCM_SETCURFOCUS, 1);
    WaitFor("the second page", [this] { return app.Visible(IDC_FORM4_LIST2); });
    EXPECT_FALSE(app.Visible(IDC_FORM4_LIST1));
    EXPECT_FALSE(app.Visible(IDC_FORM4_FRATAB0));
}

}  // namespace
}  // namespace driver
