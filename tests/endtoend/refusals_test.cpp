// A session that says no, answered as the system menu's options say.

#include <algorithm>
#include <sstream>

#include "scenario.h"

namespace {

struct Refusals : Scenario {
    /// Starts the session, known by its process alone, and the program with all four options.
    void start(const std::string& documents) {
        writeListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"});
        const auto file = sandbox.directory() / "documents.txt";
        writeFileBytes(file, documents);
        for (const char* key : {"passerrefus", "gardernonsauve", "laisserouverts", "references"}) {
            settings.set("tarnwick", "options", key, "1");
        }
        cad.start({"--pid-only", "--working-directory", utf8(sandbox.directory().wstring()),
                   "--documents", utf8(file.wstring())});
        startAndResume();
    }

    /// The remarks in the report, in the order of the lines.
    Lines remarks() const {
        app.chooseInSystemMenu(kTracking, IDM_FORM3_RAPPORT);
        app.saveAsProposed("Exporter le rapport", "tarnwick-rapport.csv");
        std::string report;
        waitFor("the report", [&] {
            report = readFileBytes(sandbox.directory() / "tarnwick-rapport.csv").value_or("");
            return !report.empty();
        });
        Lines found;
        std::istringstream lines(report.substr(report.find('\n') + 1));
        for (std::string line; std::getline(lines, line);)
            found.push_back(line.substr(line.rfind(';') + 1, line.size() - line.rfind(';') - 2));
        return found;
    }

    int countOf(const std::string& call) const {
        const calls::Calls all = cad.calls();
        return static_cast<int>(std::ranges::count(all, call));
    }
};

TEST_F(Refusals, PassOverKeepOpenAndLeaveOpen) {
    start(
        "a.SLDPRT;error=2;warning=32\nb.SLDPRT;refuse=65536\nc.SLDPRT;save=16:1\n"
        "d.SLDPRT;open\n");
    app.waitForText(IDC_FORM3_TXTETAT, paths[0]);
    app.click(IDC_FORM3_CMDSUIV);
    app.waitForText(IDC_FORM3_TXTETAT, paths[2]);
    EXPECT_EQ(countOf(calls::closing(paths[1])), 0);
    app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    app.click(IDC_FORM3_CMDSUIV);
    const ModalBox box = app.box();
    EXPECT_EQ(box.text(),
              "SolidWorks n'a pas enregistré :\r\n" + paths[2] + "\r\nfichier verrouillé (16)");
    EXPECT_EQ(box.buttons(), (std::vector{IDCANCEL, IDRETRY}));
    EXPECT_EQ(box.defaultButton(), IDRETRY);
    EXPECT_EQ(countOf(calls::closing(paths[2])), 0);
    box.answer(IDRETRY);
    app.waitForText(IDC_FORM3_TXTETAT, paths[3]);
    app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
    expectLines(IDC_FORM3_LIST1, {"0001  " + kDone + paths[0], "0002  " + kToDo + paths[1],
                                  "0003  " + kDone + paths[2], "0004  " + kInProgress + paths[3]});
    EXPECT_EQ(remarks(), (Lines{"Ouvert avec erreur : fichier ou composant introuvable (2) | "
                                "A reconstruire (32)",
                                "Non ouvert : un document de même nom est déjà ouvert (65536)", "",
                                "Déjà ouvert (128)"}));
    app.click(IDC_FORM3_CMDSORTIE);
    expectEnd();
    EXPECT_EQ(countOf(calls::closing(paths[3])), 0);
    EXPECT_EQ(cad.calls().back().substr(0, 27), "SetCurrentWorkingDirectory(");
    EXPECT_EQ(cad.calls().back().find("documents"), std::string::npos) << cad.calls().back();
    EXPECT_EQ(callByName(cad.application().get(), L"GetDocumentCount").number, 1);
}

}  // namespace
