// How a file is replaced that another program has open.

#include "rules/windows_files.h"
#include "unit/unit_test.h"

using namespace windows_error;

namespace {

/// A file in whose place nothing can be moved for a while.
struct HeldFile : ReplacementSteps {
    int moving = 0, opening = 0;  // Windows' answers
    int movesFailing = 0;
    int moves = 0, pauses = 0;
    Texts done;

    bool isProtected(const std::wstring&) override { return false; }
    std::wstring nameBeside(const std::wstring& path) override { return path + L".tmp"; }
    std::uint32_t create(const std::wstring&) override { return 0; }
    std::uint32_t write(std::string_view) override { return 0; }
    std::uint32_t flush() override { return done.push_back(L"flush"), 0; }
    void close() override { done.push_back(L"close"); }
    std::uint32_t move(const std::wstring&, const std::wstring&) override {
        return moves++ < movesFailing ? static_cast<std::uint32_t>(moving) : 0;
    }
    std::uint32_t openAlone(const std::wstring&) override {
        return static_cast<std::uint32_t>(opening);
    }
    std::uint32_t remove(const std::wstring& path) override { return done.push_back(path), 0; }
    void pause() override { ++pauses; }

    int replace() {
        return raised([&] {
            replaceFile(
                L"c:\\l.lst", [](const ByteSink&) {}, *this);
        });
    }
};

}  // namespace

TEST(FileReplacement, OpensAFileOnceNobodyIsInTheWay) {
    const struct {
        std::uint32_t error;
        int failing, pauses;
    } cases[] = {{kSharingViolation, 3, 3},
                 {kAccessDenied, 3, 3},  // it is about to go
                 {kLockViolation, 1000, 2000 / kReplacementPause},
                 {kFileNotFound, 1, 0}};
    for (const auto& c : cases) {
        int opened = 0, pauses = 0;
        const auto open = [&] { return opened++ < c.failing ? c.error : 0; };
        const bool gone = c.error == kFileNotFound || c.failing == 1000;
        EXPECT_EQ(openWhenFree(open, [&] { ++pauses; }), gone ? c.error : 0);
        EXPECT_EQ(pauses, c.pauses);
    }
}

TEST(FileReplacement, WaitsTwoSecondsForAnotherProgramAndNotForARefusal) {
    const struct {
        int moving, opening, failing, error, pauses;
    } cases[] = {
        {kSharingViolation, 0, 3, 0, 3},
        {kSharingViolation, 0, 1000, 70, 2000 / kReplacementPause},
        {kAccessDenied, kSharingViolation, 3, 0, 3},  // as Windows often says it
        {kAccessDenied, 0, 1, 0, 1},                  // let go of just now
        {kAccessDenied, kAccessDenied, 1, 75, 0},
    };
    for (const auto& c : cases) {
        HeldFile file;
        file.moving = c.moving;
        file.opening = c.opening;
        file.movesFailing = c.failing;
        EXPECT_EQ(file.replace(), c.error) << c.pauses;
        EXPECT_EQ(file.pauses, c.pauses);
        // A file must not be moved while it is open, nor stay when it could not be.
        Texts done = {L"flush", L"close", L"close"};
        if (c.error != 0) done.push_back(L"\\\\?\\c:\\l.lst.tmp");
        EXPECT_EQ(file.done, done);
    }
}
