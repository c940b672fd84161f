#include "selection/found_documents.h"

#include <gtest/gtest.h>

namespace {

using Entries = std::vector<std::wstring>;

void store(FoundDocuments& found, std::initializer_list<const wchar_t*> names) {
    for (const wchar_t* name : names) found.store(L"c:\\x", name);
}

Entries entries(const FoundDocuments& found) {
    Entries result;
    for (int i = 0; i < found.count(); ++i) result.push_back(found.entry(i));
    return result;
}

}  // namespace

TEST(FoundDocuments, KeepsBareNamesOncePerPass) {
    FoundDocuments found;
    found.beginPass(false);
    store(found, {L"b", L"a", L"b", L"B", L"a"});
    found.beginPass(true);
    store(found, {L"a", L"a"});
    EXPECT_EQ(entries(found), (Entries{L"b", L"a", L"B", L"a"}));
    found.beginPass(false);
    EXPECT_EQ(found.count(), 0);
}

TEST(FoundDocuments, KeepsEveryFullPath) {
    FoundDocuments found;
    found.restart(true);
    found.beginPass(false);
    store(found, {L"a", L"a"});
    found.store(L"c:\\", L"a");
    EXPECT_EQ(entries(found), (Entries{L"c:\\x\\a", L"c:\\x\\a", L"c:\\\\a"}));
    found.restart(false);
    EXPECT_EQ(found.count(), 0);
    EXPECT_FALSE(found.fullPaths());
}

TEST(FoundDocuments, TheVeryLastEntryOutlivesANewPass) {
    FoundDocuments found;
    const auto fill = [&](const std::wstring& prefix, int upTo) {
        for (int i = found.count(); i < upTo; ++i) found.store(L"", prefix + std::to_wstring(i));
    };
    fill(L"n", FoundDocuments::kCapacity);
    found.beginPass(false);
    EXPECT_EQ(found.count(), 0);

    // Only the place that comes next is compared, so the name itself can be stored further up.
    store(found, {L"n8000"});
    fill(L"autre", 8000);
    found.beginPass(true);
    store(found, {L"n8000"});
    EXPECT_EQ(found.count(), 8000);
    store(found, {L"nouveau"});
    EXPECT_EQ(found.count(), 8001);
    EXPECT_EQ(found.entry(8000), L"nouveau");
}
