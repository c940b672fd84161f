#include "selection/found_documents.h"

#include <gtest/gtest.h>

#include "unit/raised.h"

namespace {

constexpr int kCapacity = FoundDocuments::kCapacity;

void storeMany(FoundDocuments& found, const std::wstring& prefix, int count) {
    for (int i = 0; i < count; ++i) found.store(L"c:\\a", prefix + std::to_wstring(i));
}

std::vector<std::wstring> entries(const FoundDocuments& found) {
    std::vector<std::wstring> result;
    for (int i = 0; i < found.count(); ++i) result.push_back(found.entry(i));
    return result;
}

}  // namespace

TEST(FoundDocuments, KeepsBareNamesOncePerPass) {
    FoundDocuments found;
    found.beginPass(false);
    for (const wchar_t* name : {L"b", L"a", L"b", L"B", L"a"}) found.store(L"c:\\x", name);
    EXPECT_EQ(entries(found), (std::vector<std::wstring>{L"b", L"a", L"B"}));
    found.beginPass(true);
    found.store(L"c:\\y", L"a");
    found.store(L"c:\\y", L"a");
    EXPECT_EQ(entries(found), (std::vector<std::wstring>{L"b", L"a", L"B", L"a"}));
    found.beginPass(false);
    EXPECT_EQ(found.count(), 0);
}

TEST(FoundDocuments, KeepsEveryFullPath) {
    FoundDocuments found;
    found.restart(true);
    found.beginPass(false);
    found.store(L"c:\\x", L"a");
    found.store(L"c:\\x", L"a");
    found.store(L"c:\\", L"a");
    EXPECT_EQ(entries(found), (std::vector<std::wstring>{L"c:\\x\\a", L"c:\\x\\a", L"c:\\\\a"}));
    found.restart(false);
    EXPECT_EQ(found.count(), 0);
    EXPECT_FALSE(found.fullPaths());
}

TEST(FoundDocuments, TheVeryLastEntryOutlivesANewPass) {
    FoundDocuments found;
    storeMany(found, L"n", kCapacity);
    found.beginPass(false);
    EXPECT_EQ(found.count(), 0);

    // Only the place that comes next is compared, so the name itself can be stored further up.
    found.store(L"c:\\a", L"n8000");
    storeMany(found, L"autre", kCapacity - 2);
    EXPECT_EQ(found.count(), 8000);
    found.beginPass(true);
    found.store(L"c:\\a", L"n8000");
    EXPECT_EQ(found.count(), 8000);
    found.store(L"c:\\a", L"nouveau");
    EXPECT_EQ(found.count(), 8001);
    EXPECT_EQ(found.entry(8000), L"nouveau");
}
