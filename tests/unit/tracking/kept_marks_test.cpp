#include "unit/tracking/tracking_window_fixture.h"

struct Resuming : TrackingFixture {
    /// Starts again as after a kill, with these answers; returns the boxes that came.
    Texts restart(std::deque<Answer> answers) {
        machine.boxes.shown.clear();
        machine.boxes.answers = std::move(answers);
        start();
        for (const auto& box : machine.boxes.shown) {
            EXPECT_EQ(box, (MessageBoxContent{.text = box.text,
                                              .title = L"Tarnwick",
                                              .buttons = MessageBoxContent::Buttons::YesNo}));
        }
        return machine.boxes.takeTexts();
    }

    /// The application dies while it opens the document with this name.
    void dieOpening(const std::wstring& name) {
        machine.automation.overrides[L"OpenDoc6"] = [name](auto arguments) -> Value {
            const std::wstring path = *std::get<std::wstring*>(arguments[0]);
            if (path.ends_with(name)) throw errors::automation(L"");
            return ObjectPtr();
        };
    }
};

const std::wstring kMarked =
    L"Le passage précédent s'est arrêté avant l'enregistrement de la liste.\r\n"
    L"Documents marqués depuis : 2\r\nRetrouver ces marques ?";
const std::wstring kOpening =
    L"Tarnwick s'est arrêté pendant l'ouverture de :\r\nc:\\c\r\nPasser au document suivant ?";

TEST_F(Resuming, OffersTheMarksThatWereKept) {
    loadStates(L"00000");
    clickAll({kSave, kSee});
    // A box that could not be shown is no No.
    for (const Answer answer : {kYes, Answer{}, kNo}) {
        EXPECT_EQ(restart({answer}), Texts{kMarked});
        EXPECT_EQ(states(), answer == kNo ? L"3 0 0 0 0" : L"1 2 3 0 0");
    }
    EXPECT_EQ(record(), "");
    EXPECT_EQ(restart({}), Texts());
    // Neither a save nor a launch of the same list leaves anything to offer.
    click(kSave);
    start(Origin::Launched);
    EXPECT_EQ(record(), "");
    EXPECT_EQ(states(), L"3 0 0 0 0");
    clickAll({kSave, kSaveList});
    EXPECT_EQ(record(), "");
    machine.boxes.answers = {kYes};
    clickAll({kSee, IDC_FORM3_CMDPURGE});
    EXPECT_EQ(restart({kYes}), Texts{kMarked});
    EXPECT_EQ(states(), L"3 0 0");
    // A line in progress counts as to do.
    loadStates(L"0300");
    click(kSee);
    EXPECT_TRUE(has(restart({kYes}).at(0), L"depuis : 1\r\n"));
}

TEST_F(Resuming, LeavesTheRecordAtEveryEndAndSaysSoWhenOneIsAnError) {
    for (const bool marked : {false, true}) {
        loadStates(L"0000");
        if (marked) click(kSave);
        EXPECT_THROW(click(kLeave), ProgramEnd);
        EXPECT_EQ(record() != "", marked);
    }
    dieOpening(L"c");
    restart({kYes});
    const std::wstring failure = raisedError([&] { click(kSave); }).text;
    EXPECT_TRUE(has(failure, L"\r\nDocument : c:\\c\r\nLes marques"));
}

TEST_F(Resuming, GoesPastADocumentThatStopsTheProgramOrOpensItAgain) {
    for (const Answer goesPast : {kYes, kNo}) {
        dieOpening(L"c");
        loadStates(L"0000");
        click(kSave);
        EXPECT_THROW(click(kSave), RuntimeError);
        machine.automation.overrides.clear();
        EXPECT_EQ(restart({kYes, goesPast}), (Texts{kMarked, kOpening}));
        EXPECT_EQ(states(), goesPast == kYes ? L"1 1 0 3" : L"1 1 3 0");
        EXPECT_EQ(text(IDC_FORM3_TXTETAT), goesPast == kYes ? L"c:\\d" : L"c:\\c");
    }
    // The very first document; and one with nothing to do behind it.
    dieOpening(L"c");
    const auto first = raisedError([&] { load(L"0  c:\\c\r\n0  c:\\d\r\n"); });
    EXPECT_TRUE(first.text.ends_with(L"c:\\c")) << first.text;  // no marks are kept
    EXPECT_EQ(restart({kYes}), Texts{kOpening});
    EXPECT_EQ(states(), L"0 3");
    EXPECT_THROW(load(L"1  c:\\a\r\n0  c:\\c\r\n2  c:\\d\r\n"), RuntimeError);
    EXPECT_EQ(restart({kYes}), Texts{kOpening});
    EXPECT_EQ(states(), L"1 0 2");
    EXPECT_FALSE(canAdvance());
    EXPECT_EQ(text(IDC_FORM3_CPTFICHIER1), L"3");
    // That has been asked; the program did not stop again.
    EXPECT_EQ(record(), "");
    // Nor is a document being opened while the one before is closed.
    loadStates(L"00");
    machine.automation.overrides[L"closedoc"] = [](auto) -> Value { throw errors::emptyObject(); };
    EXPECT_THROW(command(kResume, {1}), RuntimeError);
    EXPECT_EQ(restart({}), Texts());
}

TEST_F(Resuming, TellsOnceThatMarksCannotBeKeptAndTriesAgainToTheEnd) {
    for (const int next : {kSee, kSaveList, kLeave, kTheWindow}) {
        machine.records.fails = [](int) { return true; };
        loadStates(L"0000");
        clickAll({kSave, kSave});
        EXPECT_EQ(machine.boxes.takeTexts().size(), 1U);
        machine.records.fails = [](int) { return false; };
        if (next == kSaveList) machine.files.failing[machine.programFiles.list] = 1;
        try {
            raised([&] { next == kTheWindow ? window().close() : click(next); });
        } catch (const ProgramEnd&) {
        }
        EXPECT_EQ(restart({kYes}).size(), 1U) << next;
        EXPECT_EQ(states(), next == kSee ? L"1 1 2 3" : L"1 1 3 0");
    }
}

// Its end is an error; the last mark is not lost.
TEST_F(Resuming, AFullListEndsPastTheTable) {
    loadStates(std::wstring(7999, L'1') + L"00");
    click(kSave);
    EXPECT_EQ(raised([&] { click(kSee); }), 9);
    EXPECT_EQ(restart({kYes}).size(), 1U);
    EXPECT_EQ(work().lines[8000].code, LineState::Seen);
}
