#include "platform/call_error.h"

#include <gtest/gtest.h>

namespace {

int numberOf(CallResult result) { return callError({.result = result, .name = L"save2"}).number; }

RuntimeError serverError(std::uint32_t code, const std::wstring& description) {
    return callError({.result = call_result::kException,
                      .name = L"save2",
                      .serverCode = call_result::failure(code),
                      .description = description});
}

}  // namespace

TEST(CallError, TellsWhatWasWrongWithTheCall) {
    EXPECT_EQ(numberOf(call_result::kUnknownName), 438);
    EXPECT_EQ(numberOf(call_result::kMemberNotFound), 438);
    EXPECT_EQ(numberOf(call_result::kTypeMismatch), 13);
    for (const CallResult other : {call_result::kRejected, call_result::kServerDied, -1}) {
        EXPECT_EQ(numberOf(other), 440) << other;
        EXPECT_FALSE(callError({.result = other, .name = L"save2"}).text.empty());
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
