#include "cad/cad_session.h"

#include <gtest/gtest.h>

#include "app/module1.h"
#include "fakes/fake_automation.h"
#include "fakes/fake_desktop.h"
#include "unit/raised.h"

namespace {

constexpr wchar_t kPath[] = L"c:\\été\\a.SLDPRT";

class CadSessionTest : public testing::Test {
 protected:
    CadSessionTest() {
        EXPECT_TRUE(session.attach(automation));
        automation.takeJournal();
    }

    FakeAutomation automation;
    FakeDesktop desktop;
    Module1 module;
    CadSession session{module, desktop};
};

}  // namespace

TEST_F(CadSessionTest, KeepsThePathThatTheServerChanges) {
    automation.overrides[L"OpenDoc6"] = [](auto arguments) -> Value {
        *std::get<std::wstring*>(arguments[0]) = L"autre";
        *std::get<std::int16_t*>(arguments[1]) = 3;
        return ObjectPtr();
    };
    ASSERT_TRUE(session.attach(automation));
    const std::wstring path = kPath;
    session.open(path, 1, true);
    EXPECT_EQ(path, kPath);
    EXPECT_EQ(module.SwDoc, nullptr);
}

TEST_F(CadSessionTest, PassesOnThatThereIsNoSuchWindow) {
    automation.revision = L"14.0";
    session.open(kPath, 1, true);
    session.readRevision();
    desktop.windows = {{L"SolidWorks 2006 - a.SLDPRT", 7}};
    session.bringForward();
    EXPECT_EQ(desktop.broughtForward, std::vector<Desktop::WindowHandle>{0});
    EXPECT_EQ(automation.journal.back(), L"a.SLDPRT.ViewZoomtofit2()");
}

TEST_F(CadSessionTest, FailsWithoutADocument) {
    automation.documentsOpen = false;
    session.open(kPath, 1, true);
    session.activate(kPath, 1);
    EXPECT_EQ(raised([&] { session.rebuild(true); }), 91);
    EXPECT_EQ(raised([&] { session.save(); }), 91);
    EXPECT_EQ(raised([&] { session.bringForward(); }), 91);
    EXPECT_TRUE(desktop.broughtForward.empty());
}
