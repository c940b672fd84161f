#include "driver/wait.h"
#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

using calls::Close;
using calls::Open;
using calls::Together;

const std::string kToDo = "              ";
const std::string kDone = " Fait          ";
const std::string kSeen = " Vu            ";
const std::string kInProgress = " EnCours  ";

class ListCommands : public Scenario {
 protected:
    ListCommands() {
        std::string list;
        for (const char* name :
             {"a.SLDPRT", "b.SLDPRT", "c.SLDASM", "d.SLDPRT", "e.SLDDRW", "f.SLDPRT"}) {
            paths.push_back(sandbox.AddDocument(name));
            list += ListLine("0", paths.back());
        }
        sandbox.WriteList(list);
        cad.Start();
        StartAndResume();
        ExpectCalls(Together({calls::AtStartUp(), Open(paths[0])}));
    }

    /// Presses a command's button and checks what it asks; the answer is Yes.
    void Confirm(int button, const std::string& title, const std::string& text) const {
        app.Click(button);
        const ModalBox box = app.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Text(), text);
        EXPECT_EQ(box.Buttons(), (std::vector{IDYES, IDNO}));
        EXPECT_EQ(box.DefaultButton(), IDNO);
        EXPECT_TRUE(box.HasIcon());
        box.Answer(IDYES);
    }

    /// Waits for the list to show these documents, by their indices, with these labels.
    void ExpectLines(const std::vector<std::pair<std::string, size_t>>& shown) const {
        std::vector<std::string> lines;
        for (const auto& [label, document] : shown)
            lines.push_back("000" + std::to_string(lines.size() + 1) + "  " + label +
                            paths[document]);
        EXPECT_EQ(Eventually<std::vector<std::string>>(
                      lines, [this] { return app.Lines(IDC_FORM3_LIST1); }),
                  lines);
    }

    std::vector<std::string> paths;
};

TEST_F(ListCommands, ChangeEliminateResumeAndPurge) {
    app.Select(IDC_FORM3_LIST1, {0, 1, 2, 4});
    Confirm(IDC_FORM3_CMDCHAF, "Passage en mode 'F'",
            "Voulez vous vraiment passer les lignes sélectionnées \n\ren mode 'Fait'");
    ExpectLines({{kInProgress, 0}, {kDone, 1}, {kDone, 2}, {kToDo, 3}, {kDone, 4}, {kToDo, 5}});

    app.Select(IDC_FORM3_LIST1, {2});
    Confirm(IDC_FORM3_CMDCHAV, "Passage en mode 'V'",
            "Voulez vous vraiment passer les lignes sélectionnées \n\ren mode 'Vu'");
    ExpectLines({{kInProgress, 0}, {kDone, 1}, {kSeen, 2}, {kToDo, 3}, {kDone, 4}, {kToDo, 5}});

    // The line in progress and the one to do stay, and so does a done line that isn't selected.
    app.Select(IDC_FORM3_LIST1, {0, 1, 2, 3});
    Confirm(IDC_FORM3_CMDELIF, "Elimination 'F' et 'V' ",
            "Voulez vous vraiment supprimer les fichiers marqués 'F' \n\r"
            "parmi les lignes sélectionnées");
    ExpectLines({{kInProgress, 0}, {kToDo, 3}, {kDone, 4}, {kToDo, 5}});
    EXPECT_EQ(app.Selected(IDC_FORM3_LIST1), std::vector{0});
    ExpectCalls({});

    app.Select(IDC_FORM3_LIST1, {2});
    app.Click(IDC_FORM3_CMDREPA);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[5]);
    // The document is opened, but not brought forward.
    calls::Calls opened = Open(paths[5]);
    opened.resize(opened.size() - 2);
    ExpectCalls(Together({{Close(paths[0])}, opened}));
    ExpectLines({{kToDo, 0}, {kToDo, 3}, {kDone, 4}, {kInProgress, 5}});

    Confirm(IDC_FORM3_CMDPURGE, "Elimination 'F' et 'V' ",
            "Voulez vous vraiment supprimer tous les fichiers marqués 'F' et 'V'\n\r"
            "sans tenir compte des lignes sélectionnées ? ");
    ExpectLines({{kToDo, 0}, {kToDo, 3}, {kInProgress, 5}});
    app.WaitForText(IDC_FORM3_CPTFICHIER1, "3");
    EXPECT_EQ(app.TextOf(IDC_FORM3_NBFICH1), "3");

    app.Select(IDC_FORM3_LIST1, {1});
    Confirm(IDC_FORM3_CMDCHARAZ, "Passage en mode 'A Traiter'",
            "Voulez vous vraiment passer les lignes sélectionnées \n\ren mode 'à traiter'");
    app.WaitForText(IDC_FORM3_TXTETAT, paths[0]);
    ExpectCalls(Together({{Close(paths[5])}, Open(paths[0])}));

    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListLine("3", paths[0]) + ListLine("0", paths[3]) + ListLine("0", paths[5]));
}

}  // namespace
}  // namespace driver
