#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

using calls::Close;
using calls::Open;
using calls::Together;

class ListCommands : public Scenario {
 protected:
    /// Presses a command's button for these lines and answers Yes to what it asks.
    void Command(int button, const std::vector<int>& lines, const std::string& title) const {
        app.Select(IDC_FORM3_LIST1, lines);
        app.Click(button);
        const ModalBox box = app.Box();
        EXPECT_EQ(box.Title(), title);
        EXPECT_EQ(box.Buttons(), (std::vector{IDYES, IDNO}));
        EXPECT_EQ(box.DefaultButton(), IDNO);
        EXPECT_TRUE(box.HasIcon());
        box.Answer(IDYES);
    }

    /// Waits for the list to show these documents, by their indices, with these labels.
    void ExpectShown(const std::vector<std::pair<std::string, size_t>>& shown) const {
        Lines lines;
        for (const auto& [label, document] : shown)
            lines.push_back("000" + std::to_string(lines.size() + 1) + "  " + label +
                            paths[document]);
        ExpectLines(IDC_FORM3_LIST1, lines);
    }
};

TEST_F(ListCommands, ChangeEliminateResumeAndPurge) {
    WriteListOf({"a.SLDPRT", "b.SLDPRT", "c.SLDASM", "d.SLDPRT", "e.SLDDRW", "f.SLDPRT"});
    cad.Start();
    StartAndResume();
    ExpectCalls(Together({calls::AtStartUp(), Open(paths[0])}));
    Command(IDC_FORM3_CMDCHAF, {0, 1, 2, 4}, "Passage en mode 'F'");
    ExpectShown({{kInProgress, 0}, {kDone, 1}, {kDone, 2}, {kToDo, 3}, {kDone, 4}, {kToDo, 5}});
    // The line in progress and the one to do stay, and so does a done line that isn't selected.
    Command(IDC_FORM3_CMDELIF, {0, 1, 2, 3}, "Elimination 'F' et 'V' ");
    ExpectShown({{kInProgress, 0}, {kToDo, 3}, {kDone, 4}, {kToDo, 5}});
    EXPECT_EQ(app.Selected(IDC_FORM3_LIST1), std::vector{0});
    ExpectCalls({});

    app.Select(IDC_FORM3_LIST1, {2});
    app.Click(IDC_FORM3_CMDREPA);
    app.WaitForText(IDC_FORM3_TXTETAT, paths[5]);
    // The document is opened, but not brought forward.
    calls::Calls opened = Open(paths[5]);
    opened.resize(opened.size() - 2);
    ExpectCalls(Together({{Close(paths[0])}, opened}));
    Command(IDC_FORM3_CMDPURGE, {}, "Elimination 'F' et 'V' ");
    ExpectShown({{kToDo, 0}, {kToDo, 3}, {kInProgress, 5}});

    Command(IDC_FORM3_CMDCHARAZ, {1}, "Passage en mode 'A Traiter'");
    app.WaitForText(IDC_FORM3_TXTETAT, paths[0]);
    ExpectCalls(Together({{Close(paths[5])}, Open(paths[0])}));
    app.Click(IDC_FORM3_CMDFICHIERLISTE);
    ExpectList(ListLine("3", paths[0]) + ListLine("0", paths[3]) + ListLine("0", paths[5]));
}

}  // namespace
}  // namespace driver
