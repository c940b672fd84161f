// The file that tells who has a list open, as several programs meet it.

#include "contract/machine.h"
#include "win32/process/win_list_holds.h"

namespace {

const ListHolder kJean{L"jean", L"PC-1"};
const ListHolder kZoe{L"zoé", L"PC-2"};

struct HoldFileTest : ContractTest {
    std::wstring file = path(L"liste.verrou");
};

}  // namespace

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
    const auto open = [&](DWORD access, DWORD how) {
        return UniqueHandle(
            CreateFileW(file.c_str(), access, FILE_SHARE_READ, nullptr, how, 0, nullptr));
    };
    UniqueHandle other = open(GENERIC_READ | GENERIC_WRITE, CREATE_NEW);
    const std::string bytes = "\xFF\xFE" + std::string(5000, 'x');
    DWORD written = 0;
    WriteFile(other.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    HoldFile ours(file);
    EXPECT_EQ(ours.take(kJean), HoldFileState::Theirs);
    EXPECT_FALSE(ours.holder().user.empty()) << "whatever bytes it is named by";
    other.reset();
    other = open(GENERIC_READ, OPEN_EXISTING);
    EXPECT_EQ(ours.take(kJean), HoldFileState::Busy);
    other.reset();
    EXPECT_EQ(ours.take(kJean), HoldFileState::Ours);
}
