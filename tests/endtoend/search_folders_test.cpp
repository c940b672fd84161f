#include <windows.h>

#include <commctrl.h>

#include "scenario.h"

namespace {

struct SearchFolders : Scenario {
    /// Where the buttons of the page in front stand, with the room around them where the second
    /// press of a double click may fall.
    std::vector<RECT> ButtonsInFront() const {
        std::vector<RECT> places;
        for (HWND control : Descendants(app.Window(kConfigurations))) {
            const LONG kind = GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
            if (ClassOf(control) != "Button" || kind == BS_GROUPBOX) continue;
            if (!IsWindowVisible(control)) continue;
            places.push_back(PlaceOf(control));
            InflateRect(&places.back(), GetSystemMetrics(SM_CXDOUBLECLK) / 2,
                        GetSystemMetrics(SM_CYDOUBLECLK) / 2);
        }
        return places;
    }

    void OpenConfigurations() {
        app.Click(IDC_FORM1_CMDREPDEF);
        app.Window(kConfigurations);
        ExpectCalls({"GetSearchFolders(0:i4)"});
    }
};

TEST_F(SearchFolders, AreCreatedSavedAppliedAndFoundAgain) {
    const std::string documents = Utf8(sandbox.Documents().wstring());
    const Lines tree{documents, documents + "\\Bâti", documents + "\\Bâti\\Brides",
                     documents + "\\Visserie"};
    sandbox.AddDocument("Bâti\\Brides\\Bride.SLDPRT");
    sandbox.AddDocument("Visserie\\Écrou.SLDPRT");
    StartInDocuments({"--hidden", "--search-folders", "C:\\Normes;C:\\Profilés"});
    ExpectCalls(calls::AtStartUp());
    OpenConfigurations();
    ExpectLines(IDC_FORM4_LIST1, {"En Cours"});
    EXPECT_TRUE(app.Selected(IDC_FORM4_LIST1).empty());
    ExpectLines(IDC_FORM4_LIST3, {"C:\\Normes", "C:\\Profilés"});

    const std::vector<RECT> firstPage = ButtonsInFront();
    EXPECT_FALSE(app.Visible(IDC_FORM4_LIST2));
    Post(app.Control(IDC_FORM4_TABSTRIP1), TCM_SETCURFOCUS, 1);
    WaitFor("the second page", [this] { return app.Visible(IDC_FORM4_LIST2); });
    EXPECT_FALSE(app.Visible(IDC_FORM4_LIST1) || app.Visible(IDC_FORM4_FRATAB0));
    RECT both;
    for (const RECT& first : firstPage)
        for (const RECT& second : ButtonsInFront())
            EXPECT_FALSE(IntersectRect(&both, &first, &second)) << both.left << ' ' << both.top;

    app.Click(IDC_FORM4_CMDCREER);
    app.Open(IDC_FORM4_DIR1, "documents");
    app.Click(IDC_FORM4_CMDAJO2);
    ExpectLines(IDC_FORM4_LIST2, tree);
    app.Select(IDC_FORM4_LIST2, {1});
    app.Click(IDC_FORM4_CMDRETIR2);
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
    ExpectCalls({"setsearchfolders(0:i4, &\"" + tree[0] + ";" + tree[3] + "\")"});
    EXPECT_EQ(sandbox.ReadConfigurations().value_or(""),
              "Configuration:  Chaîne n°1\r\n   " + tree[0] + "\r\n   " + tree[3] + "\r\n");

    app.Click(IDC_FORM4_CMDANNULER);
    ExpectAlone(kSelection);
    OpenConfigurations();
    ExpectLines(IDC_FORM4_LIST1, {"En Cours", "Chaîne n°1"});
    app.Select(IDC_FORM4_LIST1, {0});
    ExpectLines(IDC_FORM4_LIST3, {tree[0], tree[3]});
}

}  // namespace
