#include "rules/late_binding.h"

#include "fakes/fake_automation.h"
#include "storage/program_files.h"
#include "unit/unit_test.h"

struct LateBindingTest : testing::Test {
    ObjectPtr attach() { return byName.attach(L"SldWorks.Application"); }

    FakeAutomation automation;
    Automation& byName = automation;
};

TEST_F(LateBindingTest, LooksANameUpOncePerClassOfObjects) {
    automation.documents[L"drawing"].kind = L"drawing";
    const ObjectPtr application = attach();
    // And again when the object is of another kind, or its class is not certain.
    const std::tuple<const wchar_t*, std::wstring_view, int> cases[] = {
        {L"part", L"part", 1},    {L"part", L"part", 1}, {L"drawing", L"drawing", 2},
        {L"drawing", L"part", 3}, {L"part", {}, 4},      {L"part", {}, 5}};
    for (const auto& [name, documentClass, lookUps] : cases) {
        const ObjectPtr document =
            objectOf(callMethod(application, L"ActivateDoc2", {std::wstring(name)}, documentClass));
        callMethod(document, L"save2");
        EXPECT_EQ(std::ranges::count(automation.lookedUp, L"save2",
                                     [](const auto& member) { return member.second; }),
                  lookUps);
    }
}

TEST_F(LateBindingTest, GivesTheServersFailureAsARunTimeError) {
    automation.documents[L"a"].fails = L"ActivateDoc2";
    const RuntimeError error =
        raisedError([&] { callMethod(attach(), L"ActivateDoc2", {std::wstring(L"a")}); });
    EXPECT_EQ(error.number, 440);
    EXPECT_EQ(error.text, L"ActivateDoc2 !");
    EXPECT_EQ(raised([&] { byName.create(L"Absent.Object"); }), 440);
}

TEST_F(LateBindingTest, WaitsForARunningObjectThatIsBusy) {
    automation.attaching = call_result::kRejected;
    automation.beforeEach = [&] {
        if (automation.waiting.time > 1'005'000) automation.attaching = 0;
    };
    EXPECT_NE(attach(), nullptr);
    automation.beforeEach = [] {};
    automation.attaching = call_result::failure(0x800401E3);  // MK_E_UNAVAILABLE
    EXPECT_EQ(attach(), nullptr);
    EXPECT_TRUE(automation.boxes.shown.empty());
    // A user who gives up waiting is told that it is there.
    automation.attaching = call_result::kRetryLater;
    automation.boxes.answers = {MessageBoxes::Answer::Cancel};
    EXPECT_EQ(raised([&] { attach(); }), 440);
    EXPECT_EQ(automation.boxes.shown.size(), 1U);
}

TEST(AutomationResult, BecomesTextWhenItIsOneOrEmptyAndIsTrueWithAllBitsSetOnly) {
    EXPECT_EQ(textOf(Value(std::wstring(L"12.0"))), L"12.0");
    EXPECT_EQ(textOf(Value()), L"");
    for (const Value& other : {Value(true), Value(ObjectPtr())}) {
        EXPECT_EQ(raised([&] { textOf(other); }), 13);
    }
    for (const Value& all : {Value(true), Value(std::int16_t{-1}), Value(std::int32_t{-1})}) {
        EXPECT_TRUE(isTrue(all)) << all.index();
    }
    for (const Value& other : {Value(false), Value(std::int16_t{1}), Value(std::int32_t{1}),
                               Value(), Value(std::wstring(L"True"))}) {
        EXPECT_FALSE(isTrue(other)) << other.index();
    }
}

TEST(FileSystemObject, NamesThePathThatItCouldNotLookUp) {
    FakeAutomation automation;
    automation.fileExists = [](const std::wstring&) -> bool { throw errors::permissionDenied({}); };
    FileSystemObject files(automation);
    EXPECT_EQ(raisedError([&] { files.fileExists(L"s:\\x.cfg"); }).text,
              L"Permission refusée.\r\nFichier : s:\\x.cfg");
}

TEST(CallError, TellsWhatWasWrongAndALostSessionFromADocumentsFailure) {
    using namespace call_result;
    const auto error = [](CallResult result) {
        return callError({.result = result, .name = L"OpenDoc6"});
    };
    EXPECT_EQ(error(kUnknownName).number, 438);
    EXPECT_EQ(error(kMemberNotFound).number, 438);
    EXPECT_EQ(error(kTypeMismatch).number, 13);
    for (const CallResult lost :
         {kDisconnected, kServerDied, kServerDiedUnexecuted, kServerUnavailable, kCallFailed,
          kCallFailedUnexecuted, kNotConnected, kRejected, kRetryLater}) {
        EXPECT_TRUE(error(lost).sessionLost) << lost;
        EXPECT_EQ(error(lost).number, 440) << lost;
        EXPECT_FALSE(error(lost).text.empty()) << lost;
    }
    // The object of a document that the user has closed answers so, too.
    EXPECT_TRUE(error(kDisconnected).text.starts_with(L"Le document"));
    for (const CallResult other : {kException, kUnknownName, kMemberNotFound, kTypeMismatch, -1}) {
        EXPECT_FALSE(error(other).sessionLost) << other;
    }
}

TEST(CallError, TakesTheServersNumberAndWords) {
    const auto told = [](std::uint32_t code, const std::wstring& description) {
        return callError({.result = call_result::kException,
                          .name = L"save2",
                          .serverCode = call_result::failure(code),
                          .description = description});
    };
    constexpr std::uint32_t kControl = 0x800A0000;
    for (const int number : {53, 70, 75, 76}) {
        const RuntimeError error = told(kControl + static_cast<unsigned>(number), L"Non !");
        EXPECT_EQ(error.number, number);
        EXPECT_TRUE(error.text.ends_with(L".\r\nNon !")) << "its own words are no path";
    }
    EXPECT_EQ(told(kControl + 5, L"non").number, 440);
    EXPECT_EQ(told(0x80004005, L"Save2 a échoué.").text, L"Save2 a échoué.");
}
