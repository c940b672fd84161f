#include "startup/cad_session.h"

#include <gtest/gtest.h>

#include "fakes/fake_automation.h"
#include "fakes/fake_desktop.h"
#include "startup/module1.h"
#include "unit/raised.h"

namespace {

constexpr wchar_t kPath[] = L"c:\\été\\a.SLDPRT";

class CadSessionTest : public testing::Test {
 protected:
    CadSessionTest() {
        EXPECT_TRUE(session.attach(automation));
        automation.takeJournal();
    }

    /// The calls that an action makes.
    template <class Action>
    CallJournal callsOf(const Action& action) {
        automation.takeJournal();
        action();
        return automation.takeJournal();
    }

    FakeAutomation automation;
    FakeDesktop desktop;
    Module1 module;
    CadSession session{module, desktop};
};

}  // namespace

TEST_F(CadSessionTest, AttachesToARunningApplicationOnly) {
    automation.sessionRuns = false;
    EXPECT_FALSE(session.attach(automation));
    EXPECT_EQ(automation.takeJournal(), CallJournal{L"attach SldWorks.Application"});
}

TEST_F(CadSessionTest, KeepsWhatTheApplicationTells) {
    session.readRevision();
    session.readWorkingDirectory();
    EXPECT_EQ(module.NomVersionSw, L"SolidWorks 2004");
    EXPECT_EQ(module.RepTravailSw, L"c:\\plans");
    EXPECT_EQ(automation.takeJournal(),
              (CallJournal{L"RevisionNumber()", L"GetCurrentWorkingDirectory()"}));
}

TEST_F(CadSessionTest, CallsEachMethodByItsNameAndArguments) {
    EXPECT_EQ(callsOf([&] { session.open(kPath, 2, true); }),
              CallJournal{L"OpenDoc6(&\"c:\\été\\a.SLDPRT\", &2:i2, 1:i4, \"\", &0:i4, &0:i4)"});
    EXPECT_EQ(callsOf([&] { session.open(kPath, 0, false); }),
              CallJournal{L"OpenDoc6(&\"c:\\été\\a.SLDPRT\", &0:i2, 0:i4, \"\", &0:i4, &0:i4)"});
    EXPECT_EQ(callsOf([&] { session.activate(kPath, 1); }),
              CallJournal{L"ActivateDoc2(&\"c:\\été\\a.SLDPRT\", True, &0:i4)"});
    EXPECT_EQ(callsOf([&] { session.showApplication(); }), CallJournal{L"Visible = True"});
    EXPECT_EQ(callsOf([&] { session.rebuild(false); }),
              CallJournal{L"a.SLDPRT.ForceRebuild3(False)"});
    EXPECT_EQ(callsOf([&] { session.rebuild(true); }),
              CallJournal{L"a.SLDPRT.ForceRebuild3(True)"});
    EXPECT_EQ(callsOf([&] { session.save(); }), CallJournal{L"a.SLDPRT.save2(True)"});
    EXPECT_EQ(callsOf([&] { session.closeDocument(); }), CallJournal{L"closedoc(\"\")"});
    module.NomDocCourant = kPath;
    EXPECT_EQ(callsOf([&] { session.closeDocument(); }),
              CallJournal{L"closedoc(\"c:\\été\\a.SLDPRT\")"});
}

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

TEST_F(CadSessionTest, BringsForwardTheWindowWithThePlainTitleFirst) {
    session.open(kPath, 1, true);
    session.readRevision();
    desktop.windows = {{L"SolidWorks 2004 - a.SLDPRT", 7}, {L"SolidWorks 2004 - [a.SLDPRT]", 8}};
    EXPECT_EQ(callsOf([&] { session.bringForward(); }),
              (CallJournal{L"a.SLDPRT.GetTitle()", L"a.SLDPRT.ViewZoomtofit2()"}));
    EXPECT_EQ(desktop.broughtForward, std::vector<Desktop::WindowHandle>{7});
}

TEST_F(CadSessionTest, ThenTheOneWithTheBracketedTitle) {
    session.open(kPath, 1, true);
    session.readRevision();
    desktop.windows = {{L"SolidWorks 2004 - [a.SLDPRT]", 8}};
    EXPECT_EQ(callsOf([&] { session.bringForward(); }),
              (CallJournal{L"a.SLDPRT.GetTitle()", L"a.SLDPRT.GetTitle()",
                           L"a.SLDPRT.ViewZoomtofit2()"}));
    EXPECT_EQ(desktop.lookedUp, (std::vector<std::wstring>{L"SolidWorks 2004 - a.SLDPRT",
                                                           L"SolidWorks 2004 - [a.SLDPRT]"}));
    EXPECT_EQ(desktop.broughtForward, std::vector<Desktop::WindowHandle>{8});
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
