// A session that says no, answered as the system menu's options say.

#include "scenario.h"

using std::string_literals::operator""s;
using Refusals = Scenario;

TEST_F(Refusals, PassOverKeepOpenAndLeaveOpen) {
    for (const char* key : {"passerrefus", "gardernonsauve", "laisserouverts", "references"}) {
        settings.set("tarnwick", "options", key, "1");
    }
    // Known by its process alone.
    auto options = saidOf(
        "a.SLDPRT;error=2;warning=32\nb.SLDPRT;refuse=65536\nc.SLDPRT;save=16:1\nd.SLDPRT;open\n");
    options.insert(options.end(),
                   {"--pid-only", "--working-directory", utf8(sandbox.directory().wstring())});
    resume({"a.SLDPRT", "b.SLDPRT", "c.SLDPRT", "d.SLDPRT"}, options);
    waitUntilOpen(paths[0]);
    app.click(IDC_FORM3_CMDSUIV);
    waitUntilOpen(paths[2]);
    app.click(IDC_FORM3_CMDSUIV);
    const ModalBox box = app.box();
    EXPECT_EQ(box.text(),
              "SolidWorks n'a pas enregistré :\r\n" + paths[2] + "\r\nfichier verrouillé (16)");
    EXPECT_EQ(box.buttons(), (std::vector{IDCANCEL, IDRETRY}));
    EXPECT_EQ(box.defaultButton(), IDRETRY);
    EXPECT_EQ(cad.countOf("closedoc"), 1);
    box.answer(IDRETRY);
    waitUntilOpen(paths[3]);
    const std::string report = exportReport();
    for (const std::string& line :
         {"Ouvert avec erreur : fichier ou composant introuvable (2) | A reconstruire (32)\r\n2;"s,
          paths[1] + ";;;;Non ouvert : un document de même nom est déjà ouvert (65536)\r\n3;"s,
          ";oui;\r\n4;En cours;" + paths[3], ";Déjà ouvert (128)\r\n"s}) {
        EXPECT_NE(report.find(line), std::string::npos) << report;
    }
    app.click(IDC_FORM3_CMDSORTIE);
    expectEnd();
    EXPECT_EQ(cad.countOf("closedoc"), 2);
    EXPECT_EQ(cad.calls().back().find("SetCurrentWorkingDirectory("), 0U);
    EXPECT_EQ(cad.calls().back().find("documents"), std::string::npos) << cad.calls().back();
    EXPECT_EQ(callByName(cad.application().get(), L"GetDocumentCount").number, 1);
}
