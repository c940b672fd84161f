#include <windows.h>

#include <commctrl.h>

#include "scenario.h"

struct SearchFolders : Scenario {
    /// Where the buttons of the page in front stand, with the room around them where the second
    /// press of a double click may fall.
    std::vector<RECT> buttonsInFront() const {
        std::vector<RECT> places;
        for (HWND control : descendants(app.window(kConfigurations))) {
            const bool isGroup = (GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
            if (classOf(control) != "Button" || isGroup || !IsWindowVisible(control)) continue;
            places.push_back(placeOf(control));
            InflateRect(&places.back(), GetSystemMetrics(SM_CXDOUBLECLK) / 2,
                        GetSystemMetrics(SM_CYDOUBLECLK) / 2);
        }
        return places;
    }
};

TEST_F(SearchFolders, AreCreatedSavedAppliedAndFoundAgain) {
    const std::string documents = utf8(sandbox.documents().wstring());
    const Lines tree{documents, documents + "\\Bâti", documents + "\\Bâti\\Brides",
                     documents + "\\Visserie"};
    sandbox.addDocument("Bâti\\Brides\\Bride.SLDPRT");
    sandbox.addDocument("Visserie\\Écrou.SLDPRT");
    startInDocuments({"--hidden", "--search-folders", "C:\\Normes;C:\\Profilés"});
    expectCalls(calls::atStartUp());
    app.click(IDC_FORM1_CMDREPDEF);
    app.window(kConfigurations);
    expectCalls({"GetSearchFolders(0:i4)"});
    expectLines(IDC_FORM4_LIST1, {"En Cours"});
    expectLines(IDC_FORM4_LIST3, {"C:\\Normes", "C:\\Profilés"});

    const std::vector<RECT> firstPage = buttonsInFront();
    EXPECT_FALSE(app.visible(IDC_FORM4_LIST2));
    post(app.control(IDC_FORM4_TABSTRIP1), TCM_SETCURFOCUS, 1);
    waitFor("the second page", [this] { return app.visible(IDC_FORM4_LIST2); });
    EXPECT_FALSE(app.visible(IDC_FORM4_LIST1) || app.visible(IDC_FORM4_FRATAB0));
    RECT both;
    for (const RECT& first : firstPage)
        for (const RECT& second : buttonsInFront())
            EXPECT_FALSE(IntersectRect(&both, &first, &second)) << both.left << ' ' << both.top;

    app.click(IDC_FORM4_CMDCREER);
    app.open(IDC_FORM4_DIR1, "documents");
    app.click(IDC_FORM4_CMDAJO2);
    expectLines(IDC_FORM4_LIST2, tree);
    app.select(IDC_FORM4_LIST2, {1});
    app.click(IDC_FORM4_CMDRETIR2);
    app.type(IDC_FORM4_NOMDELACONF, "Chaîne n°1");
    app.waitForText(IDC_FORM4_NOMDELACONF, "Chaîne n°1");
    app.click(IDC_FORM4_CMDVALIDER);
    expectLines(IDC_FORM4_LIST1, {"En Cours", "Chaîne n°1"});
    expectLines(IDC_FORM4_LIST3, {tree[0], tree[3]});

    app.click(IDC_FORM4_CMDENREGISTER);
    app.click(IDC_FORM4_CMDCHOISIR);
    EXPECT_FALSE(app.box().hasIcon());
    EXPECT_EQ(app.answerBox(IDOK), "les répertoires de recherche de SOLIDWORKS ont été changés !");
    expectCalls({"setsearchfolders(0:i4, &\"" + tree[0] + ";" + tree[3] + "\")"});
    EXPECT_EQ(sandbox.readConfigurations().value_or(""),
              "Configuration:  Chaîne n°1\r\n   " + tree[0] + "\r\n   " + tree[3] + "\r\n");

    app.click(IDC_FORM4_CMDANNULER);
    expectAlone(kSelection);
}
