#include "rules/late_binding.h"

#include "fakes/fake_message_boxes.h"
#include "fakes/fake_waiting.h"
#include "unit/unit_test.h"

namespace {

/// A kind of documents: each knows its members by numbers of its own.
struct Kind {
    std::int32_t saveNumber;
    int lookUps = 0;
};

struct FakeDocument : ServedObject {
    explicit FakeDocument(Kind& itsKind) : kind(itsKind) {}

    Kind& kind;

    CallResult lookUp(std::wstring_view name, std::int32_t& member) override {
        ++kind.lookUps;
        member = kind.saveNumber;
        return name == L"save2" ? 0 : call_result::kUnknownName;
    }
    CallResult invoke(std::int32_t member, Access, std::span<const Argument>,
                      ServersReply& reply) override {
        if (member != kind.saveNumber) return call_result::kMemberNotFound;
        reply.value = true;
        return 0;
    }
};

/// A running application that gives documents.
struct FakeApplication : ServedObject {
    std::shared_ptr<ServedObject> document;
    CallResult answer = 0;

    CallResult lookUp(std::wstring_view, std::int32_t&) override { return 0; }
    CallResult invoke(std::int32_t, Access, std::span<const Argument>,
                      ServersReply& reply) override {
        reply.object = document;
        reply.errorCode = call_result::failure(0x80004005);
        reply.description = L"OpenDoc6 a échoué.";
        return answer;
    }
};

struct FakeServers : ObjectServers {
    std::shared_ptr<FakeApplication> application = std::make_shared<FakeApplication>();
    CallResult answer = 0;
    std::function<void()> whenAsked = [] {};

    CallResult running(const std::wstring&, std::shared_ptr<ServedObject>& object) override {
        whenAsked();
        if (answer == 0) object = application;
        return answer;
    }
    CallResult runningNamed(const std::wstring& name,
                            std::shared_ptr<ServedObject>& object) override {
        return running(name, object);
    }
    std::shared_ptr<ServedObject> make(const std::wstring&) override { return nullptr; }
};

struct LateBindingTest : testing::Test {
    FakeWaiting clock;
    FakeMessageBoxes boxes;
    Patience patience{clock, boxes, clock.judge};
    FakeServers servers;
    Automation automation{servers, patience};
    Kind parts{.saveNumber = 7};
    Kind drawings{.saveNumber = 8};

    bool save(const ObjectPtr& application, Kind& kind, std::wstring_view documentClass) {
        servers.application->document = std::make_shared<FakeDocument>(kind);
        const ObjectPtr document =
            objectOf(callMethod(application, L"OpenDoc6", {}, documentClass));
        return isTrue(callMethod(document, L"save2"));
    }
};

}  // namespace

TEST_F(LateBindingTest, LooksANameUpOncePerClassOfObjects) {
    const ObjectPtr application = automation.attach(L"SldWorks.Application");
    for (int i = 0; i < 2; ++i) EXPECT_TRUE(save(application, parts, L"part"));
    EXPECT_TRUE(save(application, drawings, L"drawing"));
    EXPECT_EQ(parts.lookUps, 1);
    EXPECT_EQ(drawings.lookUps, 1);
    // And again when the object is of another kind, or its class is not certain.
    EXPECT_TRUE(save(application, drawings, L"part"));
    EXPECT_EQ(drawings.lookUps, 2);
    for (int i = 0; i < 2; ++i) EXPECT_TRUE(save(application, parts, {}));
    EXPECT_EQ(parts.lookUps, 3);
}

TEST_F(LateBindingTest, GivesTheServersFailureAsARunTimeError) {
    const ObjectPtr application = automation.attach(L"SldWorks.Application");
    servers.application->answer = call_result::kException;
    const RuntimeError error = raisedError([&] { callMethod(application, L"OpenDoc6"); });
    EXPECT_EQ(error.number, 440);
    EXPECT_EQ(error.text, L"OpenDoc6 a échoué.");
    EXPECT_EQ(raised([&] { automation.create(L"Absent.Object"); }), 440);
}

TEST_F(LateBindingTest, WaitsForARunningObjectThatIsBusy) {
    servers.answer = call_result::kRejected;
    servers.whenAsked = [&] {
        if (clock.time > 1'005'000) servers.answer = 0;
    };
    EXPECT_NE(automation.attach(L"SldWorks.Application"), nullptr);
    servers.answer = call_result::failure(0x800401E3);  // MK_E_UNAVAILABLE
    servers.whenAsked = [] {};
    EXPECT_EQ(automation.attach(L"SldWorks.Application"), nullptr);
    EXPECT_TRUE(boxes.shown.empty());
    // A user who gives up waiting is told that it is there.
    servers.answer = call_result::kRetryLater;
    boxes.answers = {MessageBoxes::Answer::Cancel};
    EXPECT_EQ(raised([&] { automation.attach(L"SldWorks.Application"); }), 440);
    EXPECT_EQ(boxes.shown.size(), 1U);
}
