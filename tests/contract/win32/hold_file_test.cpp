// The file that tells who has a list open, as several programs meet it.

#include "contract/machine.h"
#include "win32/process/win_list_holds.h"

const ListHolder kJean{L"jean", L"PC-1"};
const ListHolder kZoe{L"zoé", L"PC-2"};

struct HoldFileTest : ContractTest {
    std::wstring file = path(L"liste.verrou");
};

TEST_F(HoldFileTest, BelongsToOneAndGoesWithIt) {
    std::optional<HoldFile> first(file);
    EXPECT_EQ(first->take(kJean), HoldFileState::Ours);
    EXPECT_TRUE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_TRUE(first->isOpen());
    HoldFile second(file);
    EXPECT_FALSE(second.isOpen());
    EXPECT_EQ(second.take(kZoe), HoldFileState::Theirs);
    EXPECT_EQ(second.holder(), kJean);
    first.reset();
    EXPECT_EQ(GetFileAttributesW(file.c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(second.take(kZoe), HoldFileState::Ours);
}

TEST_F(HoldFileTest, NeverWritesThroughALink) {
    files.replaceText(path(L"plan"), L"précieux");
    ASSERT_TRUE(CreateHardLinkW(file.c_str(), path(L"plan").c_str(), nullptr));
    HoldFile ours(file);
    EXPECT_EQ(ours.take(kJean), HoldFileState::Busy);
    EXPECT_EQ(ours.take(kJean), HoldFileState::Ours);
    EXPECT_EQ(files.readText(path(L"plan")), L"précieux");
}

TEST_F(HoldFileTest, LeftOverIsTakenOverOnceNobodyReadsIt) {
    files.replace(file, [](const ByteSink& sink) { sink("\xFF\xFE" + std::string(5000, 'x')); });
    const auto open = [&](DWORD access) {
        return UniqueHandle(
            CreateFileW(file.c_str(), access, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    };
    UniqueHandle other = open(GENERIC_READ | GENERIC_WRITE);
    HoldFile ours(file);
    EXPECT_EQ(ours.take(kJean), HoldFileState::Theirs);
    EXPECT_FALSE(ours.holder().user.empty()) << "whatever bytes it is named by";
    other.reset();
    other = open(GENERIC_READ);
    EXPECT_EQ(ours.take(kJean), HoldFileState::Busy);
    other.reset();
    EXPECT_EQ(ours.take(kJean), HoldFileState::Ours);
}
