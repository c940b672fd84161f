#include "selection/found_documents.h"

#include "unit/unit_test.h"

namespace {

void store(FoundDocuments& found, std::initializer_list<const wchar_t*> names) {
    for (const wchar_t* name : names) found.store(L"c:\\x", name);
}

/// What two passes leave of these names, the second one adding to the first.
Texts kept(bool fullPaths) {
    FoundDocuments found;
    found.restart(fullPaths);
    found.beginPass(false);
    store(found, {L"b", L"a", L"b", L"B"});
    found.beginPass(true);
    store(found, {L"a", L"a"});
    Texts result;
    for (int i = 0; i < found.count(); ++i) result.push_back(found.entry(i));
    found.beginPass(false);
    EXPECT_EQ(found.count(), 0);
    return result;
}

}  // namespace

TEST(FoundDocuments, KeepsBareNamesOncePerPassAndEveryFullPath) {
    EXPECT_EQ(kept(false), (Texts{L"b", L"a", L"B", L"a"}));
    EXPECT_EQ(kept(true), (Texts{L"c:\\x\\b", L"c:\\x\\a", L"c:\\x\\b", L"c:\\x\\B", L"c:\\x\\a",
                                 L"c:\\x\\a"}));
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
