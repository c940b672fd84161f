#include "cad/cad_session.h"

#include "cad/cad_names.h"
#include "fakes/fake_automation.h"
#include "fakes/fake_services.h"
#include "unit/unit_test.h"

constexpr wchar_t kPath[] = L"c:\\été\\a.SLDPRT";

struct CadSessionTest : testing::Test {
    void SetUp() override {
        EXPECT_TRUE(session.attach(automation));
        session.identify();
        automation.takeJournal();
    }

    FakeAutomation automation;
    FakeDesktop desktop;
    CadSession session{desktop};
    Remark remark;
};

TEST_F(CadSessionTest, KeepsThePathThatTheServerChanges) {
    automation.overrides[L"OpenDoc6"] = [](auto arguments) -> Value {
        *std::get<std::wstring*>(arguments[0]) = L"autre";
        *std::get<std::int16_t*>(arguments[1]) = 3;
        return ObjectPtr();
    };
    session.open(kPath, {}, remark);
    EXPECT_TRUE(session.hasOpen(kPath));
    EXPECT_EQ(automation.journal[1], L"ActivateDoc2(&\"c:\\été\\a.SLDPRT\", True, &0:i4)");
}

TEST_F(CadSessionTest, FailuresNameTheDocument) {
    automation.documents[L"a.SLDPRT"].opens = false;
    const std::function<void()> calls[] = {
        [&] { session.open(kPath, {.rebuild = LoadingOptions::Rebuild::TopLevel}, remark); },
        [&] { session.save(); }, [&] { session.bringForward(); }};
    for (const auto& call : calls) {
        const RuntimeError error = raisedError(call);
        EXPECT_EQ(error.number, 91);
        EXPECT_TRUE(error.text.ends_with(L"\r\nDocument : c:\\été\\a.SLDPRT"));
    }
    EXPECT_TRUE(desktop.broughtForward.empty());
}

TEST(ReleaseName, FollowsTheRevisionsFirstCharacters) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"9.0.0", L"2001"},  {L"99.1", L"2001"},   {L"10.0.0", L"2001Plus"},
        {L"11.2.0", L"2003"}, {L"12.0.1", L"2004"}, {L"13.0.0", L""},
        {L"1", L""},          {L" 12.0", L""}};
    for (const auto& [revision, year] : cases) {
        EXPECT_EQ(releaseName(revision), *year ? std::wstring(L"SolidWorks ") + year : L"")
            << revision;
    }
}

TEST(TitleOfAnyRelease, BeginsWithTheNameAndContainsTheDocuments) {
    const std::tuple<const wchar_t*, const wchar_t*, bool> cases[] = {
        {L"SOLIDWORKS Premium 2020 - [a.SLDPRT *]", L"a.SLDPRT", true},
        {L"SOLIDWORKS Premium 2020 - [a.SLDPRT *]", L"b.SLDPRT", false},
        {L"a.SLDPRT - SolidWorks", L"a.SLDPRT", false},
        {L"SOLIDWORKS", L"SOLID", false},  // only behind the name
        {L"SOLIDWORKS", L"", false}};
    for (const auto& [title, document, isOne] : cases) {
        EXPECT_EQ(isTitleOfAnyRelease(title, document), isOne) << title << document;
    }
}
