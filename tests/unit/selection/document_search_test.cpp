#include "selection/document_search.h"

#include "fakes/fake_files.h"
#include "rules/windows_files.h"
#include "unit/unit_test.h"

static Texts entries(const FoundDocuments& found) {
    Texts result;
    for (int i = 0; i < found.count(); ++i) result.push_back(found.entry(i));
    return result;
}

struct Search : testing::Test {
    Texts run(const std::wstring& directory, bool withSubdirectories,
              const wchar_t* types = L"*.SLDPRT ; *.SLDASM ; *.SLDDRW") {
        found.restart(withSubdirectories);
        listed.clear();
        DocumentSearch search({files, alone, unwatched}, found, DocumentKinds(types),
                              [&](int filesListed) { listed.push_back(filesListed); });
        search.run(directory, withSubdirectories);
        return entries(found);
    }

    FakeFiles files;
    NoWorkers alone;
    Unwatched unwatched;
    FoundDocuments found;
    std::vector<int> listed;
};

TEST_F(Search, ListsOneDirectoryByNameWhateverTheKind) {
    for (const wchar_t* name :
         {L"Zoe.SLDPRT", L"bras.SLDASM", L"Axe.slddrw", L"a.b.SldPrt", L"SLDPRT", L"notes.txt",
          L"~$bras.SLDASM", L"sous\\d.SLDPRT", L"dossier.SLDPRT\\e.SLDPRT", L"a.", L"a.SLDPRT.bak",
          L"a.SLDPRT2", L"a.SLDPRT ", L"a.XSLDPRT", L"a.\x0253LDPRT"}) {
        files.add({std::wstring(L"c:\\plans\\") + name});
    }
    files.attributes[L"c:\\plans\\~$bras.SLDASM"] = attribute::kHidden;
    EXPECT_EQ(run(L"c:\\plans", false),
              (Texts{L"a.b.SldPrt", L"Axe.slddrw", L"bras.SLDASM", L"Zoe.SLDPRT"}));
    EXPECT_EQ(listed, std::vector<int>{4});
    EXPECT_EQ(run(L"c:\\plans", false, L"sldprt"), (Texts{L"a.b.SldPrt", L"Zoe.SLDPRT"}));
    for (const wchar_t* none : {L"*.*", L""}) EXPECT_EQ(run(L"c:\\plans", false, none), Texts());
    EXPECT_EQ(files.visits, (std::map<std::wstring, int>{{L"c:\\plans", 4}}));
}

TEST_F(Search, WalksATreeDepthFirstReadingEachDirectoryOnce) {
    files.add({L"c:\\plans\\z.SLDPRT", L"c:\\plans\\beta\\b.SLDASM", L"c:\\plans\\beta\\a.SLDPRT",
               L"c:\\plans\\Alpha\\fond\\profond\\p.SLDDRW", L"c:\\plans\\Alpha\\fond\\f.SLDPRT",
               L"c:\\plans\\Alpha\\x.SLDPRT", L"c:\\plans\\alpha2\\n.SLDPRT",
               L"c:\\plans\\cache\\c.SLDPRT", L"c:\\plans\\systeme\\s.SLDPRT"});
    files.directories.insert(L"c:\\plans\\vide");
    files.attributes[L"c:\\plans\\cache"] = attribute::kHidden;
    files.attributes[L"c:\\plans\\systeme"] = attribute::kHidden | attribute::kSystem;
    EXPECT_EQ(
        run(L"c:\\plans", true),
        (Texts{L"c:\\plans\\z.SLDPRT", L"c:\\plans\\Alpha\\x.SLDPRT",
               L"c:\\plans\\Alpha\\fond\\f.SLDPRT", L"c:\\plans\\Alpha\\fond\\profond\\p.SLDDRW",
               L"c:\\plans\\alpha2\\n.SLDPRT", L"c:\\plans\\beta\\a.SLDPRT",
               L"c:\\plans\\beta\\b.SLDASM", L"c:\\plans\\cache\\c.SLDPRT"}));
    EXPECT_EQ(listed, (std::vector<int>{1, 1, 1, 1, 1, 2, 1, 0}));
    EXPECT_EQ(files.visits.size(), 8U);
    for (const auto& [directory, times] : files.visits) EXPECT_EQ(times, 1) << directory;
    files.visits.clear();
    EXPECT_EQ(run(L"c:\\plans", true, L""), Texts());
    EXPECT_EQ(files.visits.size(), 1U) << "of no kind there are none further down";
}

TEST_F(Search, FollowsLinksButNotBackIntoDirectoriesThatAreOpen) {
    files.add({L"c:\\plans\\a.SLDPRT", L"c:\\plans\\sous\\b.SLDPRT", L"d:\\autres\\c.SLDPRT",
               L"d:\\autres\\bas\\d.SLDPRT"});
    files.links = {
        {L"c:\\plans\\sous\\haut", L"c:\\plans"},          // up
        {L"c:\\plans\\sous\\ici", L"c:\\plans\\sous"},     // to itself
        {L"c:\\plans\\ailleurs", L"d:\\autres"},           // elsewhere
        {L"d:\\autres\\bas\\retour", L"d:\\autres"},       // up, met below another name
        {L"c:\\plans\\voisin", L"c:\\plans\\sous\\haut"},  // up, through another link
        {L"c:\\plans\\zbas", L"c:\\plans\\sous"},          // aside: read a second time
    };
    EXPECT_EQ(run(L"c:\\plans", true),
              (Texts{L"c:\\plans\\a.SLDPRT", L"c:\\plans\\ailleurs\\c.SLDPRT",
                     L"c:\\plans\\ailleurs\\bas\\d.SLDPRT", L"c:\\plans\\sous\\b.SLDPRT",
                     L"c:\\plans\\zbas\\b.SLDPRT"}));
}

static void store(FoundDocuments& found, const Texts& names) {
    for (const std::wstring& name : names) found.store(L"c:\\x", name);
}

TEST(FoundDocuments, KeepsBareNamesOncePerPassAndEveryFullPath) {
    for (const bool fullPaths : {false, true}) {
        FoundDocuments found;
        found.restart(fullPaths);
        found.beginPass(false);
        store(found, {L"b", L"a", L"b", L"B"});
        found.beginPass(true);
        store(found, {L"a", L"a"});
        EXPECT_EQ(entries(found), fullPaths ? (Texts{L"c:\\x\\b", L"c:\\x\\a", L"c:\\x\\b",
                                                     L"c:\\x\\B", L"c:\\x\\a", L"c:\\x\\a"})
                                            : (Texts{L"b", L"a", L"B", L"a"}));
        found.beginPass(false);
        EXPECT_EQ(found.count(), 0);
    }
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
