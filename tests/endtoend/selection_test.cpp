#include "driver/text.h"
#include "driver/wait.h"
#include "scenario.h"
#include "selection/selection_ids.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

const std::string kUnmarked = "              ";
const std::string kMarked = " X   ";
constexpr const char* kSelection = "Mervale 2002 - Tarnwick";

using Lines = std::vector<std::string>;

class Selection : public Scenario {
 protected:
    void StartInDocuments() {
        cad.Start({"--working-directory", Utf8(sandbox.Documents().wstring())});
        app.Start();
        app.Window(kSelection);
    }

    void ExpectLines(const Lines& lines) const {
        EXPECT_EQ(Eventually<Lines>(lines, [this] { return app.Lines(IDC_FORM1_LIST1); }), lines);
    }
};

TEST_F(Selection, FindsMarksFiltersAndLaunches) {
    const std::string nut = sandbox.AddDocument("Bâti\\Écrou [M8].SLDPRT");
    const std::string flange = sandbox.AddDocument("Bâti\\Brides\\Bride d'entrée.sldprt");
    const std::string frame = sandbox.AddDocument("Bâti\\Bâti.SLDASM");
    const std::string press = sandbox.AddDocument("Presse.SLDASM");
    sandbox.AddDocument("Presse.SLDDRW");
    sandbox.AddDocument("notice.txt");
    StartInDocuments();

    WaitFor("the selection window alone",
            [this] { return app.ShownWindows() == Lines{kSelection}; });
    ExpectLines({kUnmarked + "Presse.SLDDRW"});
    app.Choose(IDC_FORM1_TYPEF, "*.SLDPRT ; *.SLDASM");
    ExpectLines({kUnmarked + "Presse.SLDASM"});
    app.Click(IDC_FORM1_SOUSREP);
    ExpectLines({kUnmarked + press, kUnmarked + frame, kUnmarked + nut, kUnmarked + flange});
    EXPECT_EQ(app.TextOf(IDC_FORM1_CPTFICHIER), "4");

    app.Type(IDC_FORM1_N_FILTRE, "BRIDE");
    app.WaitForText(IDC_FORM1_N_FILTRE, "BRIDE");
    app.Click(IDC_FORM1_CMD_AJO);
    app.WaitForText(IDC_FORM1_NBFICH, "1");
    app.Select(IDC_FORM1_LIST1, {0, 3});
    app.Click(IDC_FORM1_CMDCOCHE);
    ExpectLines({kMarked + press, kUnmarked + frame, kUnmarked + nut, kUnmarked + flange});
    app.Select(IDC_FORM1_LIST1, {2, 3});
    app.Click(IDC_FORM1_CMDCOCHE);
    app.WaitForText(IDC_FORM1_NBFICH, "3");
    ExpectLines({kMarked + press, kUnmarked + frame, kMarked + nut, kMarked + flange});

    SetWindowPos(app.Window(kSelection), nullptr, 90, 60, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    app.Click(IDC_FORM1_CMD_TRACER);
    app.WaitForText(IDC_FORM3_TXTETAT, press);
    ExpectList(ListLine("0", press) + ListLine("0", nut) + ListLine("0", flange));
    EXPECT_EQ(settings.Get("tarnwick", "startup", "leftpos"), "1350");
    EXPECT_EQ(settings.Get("tarnwick", "startup", "toppos"), "900");
    WaitFor("the tracking window alone",
            [this] { return app.ShownWindows() == Lines{"Tarnwick - suivi du travail -"}; });
}

TEST_F(Selection, OpensADirectoryAndWritesItsBareNamesWithTheirPath) {
    const std::string a = sandbox.AddDocument("Plans d'été\\a.SLDDRW");
    const std::string b = sandbox.AddDocument("Plans d'été\\b.SLDDRW");
    StartInDocuments();
    ExpectLines({});
    app.Open(IDC_FORM1_REPERT, "Plans d'été");
    ExpectLines({kUnmarked + "a.SLDDRW", kUnmarked + "b.SLDDRW"});
    app.Type(IDC_FORM1_TYPEF, "slddrw, en minuscules");
    // Posted after the typed characters, so handled after the search that each of them starts.
    app.Click(IDC_FORM1_CMD_INV);
    app.WaitForText(IDC_FORM1_NBFICH, "2");
    app.Click(IDC_FORM1_CMD_TRACER);
    ExpectList(ListLine("0", a) + ListLine("0", b));
}

TEST_F(Selection, EndsSilentlyWhenLaunchedWithoutDocuments) {
    StartInDocuments();
    app.Click(IDC_FORM1_CMD_TRACER);
    EXPECT_EQ(app.WaitForExit(), 0);
    EXPECT_EQ(sandbox.ReadList(), "");
}

TEST_F(Selection, AsksBeforeAWholeDriveIsSearched) {
    cad.Start({"--working-directory", "c:\\"});
    app.Start();
    app.Window(kSelection);
    app.Click(IDC_FORM1_SOUSREP);
    const ModalBox box = app.Box();
    EXPECT_EQ(box.Title(), "Tarnwick Mervale");
    EXPECT_EQ(box.Text(),
              "    La recherche de tous les fichiers à partir de la racine  \n\r"
              "                risque d'être assez longue .\n\r \n\r"
              "             Voulez vous quand même continuer ?\n\r");
    EXPECT_EQ(box.Buttons(), (std::vector{IDYES, IDNO}));
    EXPECT_EQ(box.DefaultButton(), IDYES);
    EXPECT_FALSE(box.HasIcon());
    box.Answer(IDNO);
    WaitFor("the box to be unticked", [this] { return !app.Checked(IDC_FORM1_SOUSREP); });
}

}  // namespace
}  // namespace driver
