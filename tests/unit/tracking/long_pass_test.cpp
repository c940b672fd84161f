// A long pass of which the session refuses much.

#include "unit/tracking/tracking_window_fixture.h"

/// What each document of a long pass does, in turn; most do nothing special.
const struct {
    FakeDocument said;
    const wchar_t* calls;   ///< of its own command
    const char* code;       ///< of its line at the end
    const wchar_t* remark;  ///< its beginning
} kWays[] = {
    {{}, L"+s-", "1", L""},
    {{.opens = false, .errorCode = 65536}, L"+", "0", L"Non ouvert : un document"},
    {{.warningCode = 128}, L"+s", "1", L"Déjà ouvert (128)"},
    {{.saved = std::int32_t{2}}, L"+s-", "1", L"Non enregistré : document en lecture seule (2)"},
    {{.fails = L"ActivateDoc2"}, L"+-", "0", L"Non ouvert : l'appel a échoué (440)"},
    {{.errorCode = 2}, L"+s-", "1", L"Ouvert avec erreur : fichier"},
    {{}, L"+s-", "1", L""},
    {{.opens = false}, L"+", "0", L"Non ouvert : document non rendu (91)"},
    {{.fails = L"OpenDoc6"}, L"+", "0", L"Non ouvert : l'appel a échoué (440)"},
    {{.errorCode = 2, .fails = L"ForceRebuild3"}, L"+-", "0", L"Non ouvert : l'appel a échoué"},
    {{.opens = false, .errorCode = 2, .warningCode = 2},
     L"+",
     "0",
     L"Non ouvert : fichier ou composant introuvable (2) | Lecture seule (2)"},
};

struct LongPass : TrackingFixture {
    /// Goes to the end of a list of so many documents, each in its way; the first one is plain.
    void goThrough(int count) {
        switchOn(L"passerrefus");
        switchOn(L"laisserouverts");
        machine.settings.write(L"tarnwick", L"startup", L"regcheck", L"1110");
        std::wstring text;
        for (int i = 0; i < count; ++i) {
            const std::wstring name = std::to_wstring(i);
            machine.automation.documents[name] = way(i).said;
            text += L"0  c:\\" + name + L"\r\n";
        }
        load(text);
        while (canAdvance()) click(kSave);
    }
    static decltype(kWays[0])& way(int i) {
        return kWays[static_cast<std::size_t>(i) * 7 % std::size(kWays)];
    }
};

TEST_F(LongPass, OfTwoThousandDocumentsGoesAsEachOfThemSays) {
    constexpr int kCount = 2000;
    goThrough(kCount);
    std::wstring expected;
    for (int i = 0; i < kCount; ++i) {
        for (const wchar_t* call = way(i).calls; *call; ++call) {
            expected += *call;
            if (*call != L's') expected += std::to_wstring(i);
        }
        EXPECT_EQ(work().lines[i].code.text(), way(i).code) << i;
        EXPECT_TRUE(remark(i).starts_with(way(i).remark)) << i;
        EXPECT_EQ(remark(i).empty(), !*way(i).remark) << i;
        EXPECT_EQ(work().lines[i].history.secondsOpen >= 0, *way(i).code == '1') << i;
    }
    EXPECT_EQ(calls(), expected);
}

TEST_F(LongPass, KilledAtAnyCallKeepsEveryMarkAndWhatWasSaidOfMarkedLines) {
    constexpr int kCount = 20;
    struct KilledHere {
        std::string record;
        std::vector<WorkLine> lines;
    };
    std::vector<KilledHere> moments;
    machine.automation.beforeEach = [&] {
        if (!form) return;
        moments.push_back({record(), {}});
        for (int i = 0; i < kCount; ++i) moments.back().lines.push_back(work().lines[i]);
    };
    goThrough(kCount);
    machine.automation.beforeEach = [] {};
    ASSERT_GT(moments.size(), 60U);
    for (const KilledHere& moment : moments) {
        Pass next(machine.clock);
        const std::string bytes = machine.files.readBytes(machine.programFiles.list);
        next.read(bytes);
        const auto kept = readKeptMarks(moment.record, ContentIdentity(bytes), kCount);
        if (kept) next.restore(*kept);
        for (int i = 0; i < kCount; ++i) {
            const WorkLine& then = moment.lines[static_cast<std::size_t>(i)];
            if (then.code != LineState::Done) continue;
            EXPECT_EQ(next.list().lines[i].code, then.code) << i;
            EXPECT_EQ(next.list().lines[i].history, then.history) << i;
        }
    }
}
