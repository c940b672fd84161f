// The file that tells who has a list open, as several programs meet it.

#include "platform/win32/process/hold_file.h"

#include <gtest/gtest.h>
#include <optional>

#include "contract/win32/scratch_directory.h"

namespace {

const ListHolder kJean{L"jean", L"PC-1"};
const ListHolder kZoe{L"zoé", L"PC-2"};

class HoldFileTest : public testing::Test {
 protected:
    UniqueHandle open(DWORD access, DWORD how, DWORD sharing) const {
        return UniqueHandle(CreateFileW(path.c_str(), access, sharing, nullptr, how,
                                        FILE_ATTRIBUTE_NORMAL, nullptr));
    }

    ScratchDirectory directory;
    std::wstring path = directory.path() + L"\\liste.verrou";
};

}  // namespace

TEST_F(HoldFileTest, BelongsToOneAndGoesWithIt) {
    std::optional<HoldFile> first(path);
    EXPECT_EQ(first->take(kJean), HoldFileState::Ours);
    EXPECT_TRUE(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN);
    HoldFile second(path);
    EXPECT_EQ(second.take(kZoe), HoldFileState::Theirs);
    EXPECT_EQ(second.holder(), kJean);
    first.reset();
    EXPECT_EQ(GetFileAttributesW(path.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(second.take(kZoe), HoldFileState::Ours);
}

TEST_F(HoldFileTest, LeftOverIsTakenOverOnceNobodyReadsIt) {
    open(GENERIC_WRITE, CREATE_NEW, 0).reset();
    HoldFile file(path);
    {
        const UniqueHandle backup = open(GENERIC_READ, OPEN_EXISTING, FILE_SHARE_READ);
        EXPECT_EQ(file.take(kJean), HoldFileState::Busy);
    }
    EXPECT_EQ(file.take(kJean), HoldFileState::Ours);
    // What reads along shares all.
    EXPECT_EQ(HoldFile(path).holder(), kJean);
}

TEST_F(HoldFileTest, NamesOfAnyBytesAreRead) {
    const UniqueHandle held = open(GENERIC_READ | GENERIC_WRITE, CREATE_ALWAYS, FILE_SHARE_READ);
    EXPECT_EQ(HoldFile(path).take(kJean), HoldFileState::Theirs);
    EXPECT_EQ(HoldFile(path).holder(), ListHolder());
    const std::string bytes = "\xFF\xFE" + std::string(5000, 'x');
    DWORD written = 0;
    WriteFile(held.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    EXPECT_FALSE(HoldFile(path).holder().user.empty());
}
