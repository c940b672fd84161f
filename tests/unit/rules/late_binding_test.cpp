#include "rules/late_binding.h"

#include "fakes/fake_automation.h"
#include "storage/program_files.h"
#include "unit/unit_test.h"

namespace {

/// Knows its members by a number of its own.
struct FakeObject : ServedObject {
    explicit FakeObject(std::int32_t itsNumber) : number(itsNumber) {}

    const std::int32_t number;
    int lookUps = 0;
    CallResult answer = 0;
    std::shared_ptr<ServedObject> document;  ///< that is opened

    CallResult lookUp(std::wstring_view, std::int32_t& member) override {
        ++lookUps;
        member = number;
        return 0;
    }
    CallResult invoke(std::int32_t member, Access, std::span<const Argument>,
                      ServersReply& reply) override {
        if (member != number) return call_result::kMemberNotFound;
        reply = {.value = true, .object = document};
        reply.errorCode = call_result::failure(0x80004005);
        reply.description = L"OpenDoc6 a échoué.";
        return answer;
    }
};

struct FakeServers : ObjectServers {
    std::shared_ptr<FakeObject> application = std::make_shared<FakeObject>(1);
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
    const std::shared_ptr<FakeObject> part = std::make_shared<FakeObject>(7);
    const std::shared_ptr<FakeObject> drawing = std::make_shared<FakeObject>(8);

    void save(const ObjectPtr& application, const std::shared_ptr<FakeObject>& document,
              std::wstring_view documentClass) {
        servers.application->document = document;
        const ObjectPtr opened = objectOf(callMethod(application, L"OpenDoc6", {}, documentClass));
        EXPECT_TRUE(isTrue(callMethod(opened, L"save2")));
    }
};

}  // namespace

TEST_F(LateBindingTest, LooksANameUpOncePerClassOfObjects) {
    const ObjectPtr application = automation.attach(L"SldWorks.Application");
    for (int i = 0; i < 2; ++i) save(application, part, L"part");
    save(application, drawing, L"drawing");
    EXPECT_EQ(part->lookUps, 1);
    EXPECT_EQ(drawing->lookUps, 1);
    // And again when the object is of another kind, or its class is not certain.
    save(application, drawing, L"part");
    EXPECT_EQ(drawing->lookUps, 2);
    for (int i = 0; i < 2; ++i) save(application, part, {});
    EXPECT_EQ(part->lookUps, 3);
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

TEST(AutomationResult, BecomesTextWhenItIsOneOrEmptyAndIsTrueWithAllBitsSetOnly) {
    EXPECT_EQ(textOf(Value(std::wstring(L"12.0"))), L"12.0");
    EXPECT_EQ(textOf(Value()), L"");
    for (const Value& other : {Value(true), Value(ObjectPtr())}) {
        EXPECT_EQ(raised([&] { textOf(other); }), 13);
    }
    for (const Value& all : {Value(true), Value(std::int16_t{-1}), Value(std::int32_t{-1})}) {
        EXPECT_TRUE(isTrue(all)) << all.index();
    }
    for (const Value& other : {Value(false), Value(std::int16_t{1}), Value(std::int32_t{1}),
                               Value(), Value(std::wstring(L"True"))}) {
        EXPECT_FALSE(isTrue(other)) << other.index();
    }
}

TEST(FileSystemObject, NamesThePathThatItCouldNotLookUp) {
    FakeAutomation automation;
    automation.fileExists = [](const std::wstring&) -> bool { throw errors::permissionDenied({}); };
    FileSystemObject files(automation);
    EXPECT_EQ(raisedError([&] { files.fileExists(L"s:\\x.cfg"); }).text,
              L"Permission refusée.\r\nFichier : s:\\x.cfg");
}

TEST(CallError, TellsWhatWasWrongAndALostSessionFromADocumentsFailure) {
    using namespace call_result;
    const auto error = [](CallResult result) {
        return callError({.result = result, .name = L"OpenDoc6"});
    };
    EXPECT_EQ(error(kUnknownName).number, 438);
    EXPECT_EQ(error(kMemberNotFound).number, 438);
    EXPECT_EQ(error(kTypeMismatch).number, 13);
    for (const CallResult lost :
         {kDisconnected, kServerDied, kServerDiedUnexecuted, kServerUnavailable, kCallFailed,
          kCallFailedUnexecuted, kNotConnected, kRejected, kRetryLater}) {
        EXPECT_TRUE(error(lost).sessionLost) << lost;
        EXPECT_EQ(error(lost).number, 440) << lost;
        EXPECT_FALSE(error(lost).text.empty()) << lost;
    }
    for (const CallResult other : {kException, kUnknownName, kMemberNotFound, kTypeMismatch, -1}) {
        EXPECT_FALSE(error(other).sessionLost) << other;
    }
}

TEST(CallError, TakesTheServersNumberAndWords) {
    const auto told = [](std::uint32_t code, const std::wstring& description) {
        return callError({.result = call_result::kException,
                          .name = L"save2",
                          .serverCode = call_result::failure(code),
                          .description = description});
    };
    constexpr std::uint32_t kControl = 0x800A0000;
    for (const int number : {53, 70, 75, 76}) {
        const RuntimeError error = told(kControl + static_cast<unsigned>(number), L"Non !");
        EXPECT_EQ(error.number, number);
        EXPECT_TRUE(error.text.ends_with(L".\r\nNon !")) << "its own words are no path";
    }
    EXPECT_EQ(told(kControl + 5, L"non").number, 440);
    EXPECT_EQ(told(0x80004005, L"Save2 a échoué.").text, L"Save2 a échoué.");
}
