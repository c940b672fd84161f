#include "fakes/fake_automation.h"
#include "rules/late_binding.h"
#include "storage/program_files.h"
#include "unit/unit_test.h"

namespace {

int numberOf(CallResult result) { return callError({.result = result, .name = L"save2"}).number; }

RuntimeError serverError(std::uint32_t code, const std::wstring& description) {
    return callError({.result = call_result::kException,
                      .name = L"save2",
                      .serverCode = call_result::failure(code),
                      .description = description});
}

}  // namespace

TEST(AutomationResult, BecomesTextWhenItIsOneOrEmpty) {
    EXPECT_EQ(textOf(Value(std::wstring(L"12.0"))), L"12.0");
    EXPECT_EQ(textOf(Value()), L"");
    EXPECT_EQ(raised([] { textOf(Value(true)); }), 13);
    EXPECT_EQ(raised([] { textOf(Value(ObjectPtr())); }), 13);
}

TEST(AutomationResult, IsTrueWithAllBitsSetOnly) {
    EXPECT_TRUE(isTrue(true));
    EXPECT_TRUE(isTrue(std::int16_t{-1}));
    EXPECT_TRUE(isTrue(std::int32_t{-1}));
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

TEST(CallError, TellsWhatWasWrongWithTheCall) {
    EXPECT_EQ(numberOf(call_result::kUnknownName), 438);
    EXPECT_EQ(numberOf(call_result::kMemberNotFound), 438);
    EXPECT_EQ(numberOf(call_result::kTypeMismatch), 13);
    for (const CallResult other : {call_result::kRejected, call_result::kServerDied, -1}) {
        EXPECT_EQ(numberOf(other), 440) << other;
        EXPECT_FALSE(callError({.result = other, .name = L"save2"}).text.empty());
    }
}

TEST(CallError, TellsALostSessionFromADocumentsFailure) {
    using namespace call_result;
    for (const CallResult lost :
         {kDisconnected, kServerDied, kServerDiedUnexecuted, kServerUnavailable, kCallFailed,
          kCallFailedUnexecuted, kNotConnected, kRejected, kRetryLater}) {
        EXPECT_TRUE(callError({.result = lost, .name = L"OpenDoc6"}).sessionLost) << lost;
    }
    for (const CallResult other : {kException, kUnknownName, kMemberNotFound, kTypeMismatch, -1}) {
        EXPECT_FALSE(callError({.result = other, .name = L"OpenDoc6"}).sessionLost) << other;
    }
}

TEST(CallError, TakesTheServersNumberAndWords) {
    constexpr std::uint32_t kControl = 0x800A0000;
    for (const int number : {53, 70, 75, 76}) {
        const RuntimeError error = serverError(kControl + static_cast<unsigned>(number), L"Non !");
        EXPECT_EQ(error.number, number);
        EXPECT_TRUE(error.text.ends_with(L".\r\nNon !")) << "its own words are no path";
    }
    EXPECT_EQ(serverError(kControl + 5, L"non").number, 440);
    EXPECT_EQ(serverError(0x80004005, L"Save2 a échoué.").text, L"Save2 a échoué.");
}
