
#include "storage/window_places.h"

#include "fakes/fake_services.h"
#include "fakes/fake_window.h"
#include "unit/unit_test.h"

struct WindowPlacesTest : testing::Test, EventSink {
    void raise(int, Event) override {}

    /// Has the next run show the window on these monitors.
    Area restored(std::vector<FakeMonitor> monitors, Size size = {600, 400}) {
        FakeWindow window(*this);
        window.monitors = std::move(monitors);
        window.area = areaAt({}, size);
        places.readAll();
        places.restore(PlacedWindow::Selection, window);
        return window.area;
    }
    void leave(const std::vector<FakeMonitor>& monitors, const Area& area) {
        FakeWindow window(*this);
        window.monitors = monitors;
        window.area = area;
        places.save(PlacedWindow::Selection, window);
    }
    void store(const wchar_t* key, const wchar_t* value) {
        settings.write(L"tarnwick", L"startup", key, value);
    }

    FakeSettings settings;
    WindowPlaces places{settings};
};

const FakeMonitor kPlain{.area = {0, 0, 1920, 1080}, .work = {0, 0, 1920, 1040}};
const FakeMonitor kFine{
    .area = {1920, -300, 5760, 1860}, .work = {1920, -300, 5760, 1780}, .dpi = 192};
const FakeMonitor kAbove{.area = {0, -1'200, 1'600, -40}};
const FakeMonitor kSmall{.area = {0, 0, 1280, 1024}, .work = {0, 40, 1280, 1024}, .dpi = 144};

TEST_F(WindowPlacesTest, AreKeptUnderKeysOfTheirOwnWithinSixteenBits) {
    const std::tuple<PlacedWindow, const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
        {PlacedWindow::Selection, L"startup", L"toppos", L"leftpos"},
        {PlacedWindow::ExistingList, L"startup", L"toppos2", L"leftpos2"},
        {PlacedWindow::Tracking, L"startup", L"toppos3", L"leftpos3"},
        {PlacedWindow::SearchFolders, L"listerepert", L"toppos4", L"leftpos4"},
    };
    FakeWindow window(*this);
    for (const bool saved : {false, true}) {
        for (const auto& [which, section, top, left] : cases) {
            const Point far{3'840 + static_cast<int>(which), -32'000};
            places.readAll();
            places.restore(which, window);
            EXPECT_EQ(window.area.corner(), saved ? far : (Point{198, 94})) << top;
            if (saved) continue;
            window.leaveAt(far.x, far.y);
            places.save(which, window);
            const wchar_t* application = section[0] == L's' ? L"tarnwick" : L"mervale";
            EXPECT_EQ(settings.read(application, section, top, L""), L"-32768");
            EXPECT_EQ(settings.read(application, section, left, L""), L"32767");
        }
    }
}

TEST_F(WindowPlacesTest, ComeBackOnMonitorsOfAnyScale) {
    for (const Area& area :
         {Area{100, 50, 700, 450}, Area{2'000, -200, 3'200, 600}, Area{4'000, 700, 5'200, 1'500}}) {
        leave({kPlain, kFine}, area);
        EXPECT_EQ(restored({kPlain, kFine}), area);
        EXPECT_EQ(restored({kFine, kPlain}), area) << "whichever is the first";
    }
}

TEST_F(WindowPlacesTest, PixelsCountAsLongAsTheTwipsStandAndCanBeRead) {
    leave({kPlain, kFine}, {4'000, 700, 5'200, 1'500});
    for (const wchar_t* pixels : {L"", L"5250 30000", L"5250 30000 4000", L"5250 30000 4000 x",
                                  L"5250 30000 40000 700", L"52 30000 4000 700"}) {
        store(L"pixelpos", pixels);
        EXPECT_EQ(restored({kPlain, kFine}).corner(), (Point{4'000, 700})) << pixels;
    }
    leave({kPlain, kFine}, {4'000, 700, 5'200, 1'500});
    store(L"leftpos", L"1500");
    store(L"toppos", L"750");
    EXPECT_EQ(restored({kPlain, kFine}), (Area{100, 50, 700, 450})) << "changed meanwhile";
}

TEST_F(WindowPlacesTest, StandWholeInTheNearestWorkArea) {
    const std::tuple<const wchar_t*, const wchar_t*, Size, FakeMonitor, Area> cases[] = {
        {L"30000", L"-9000", {600, 400}, kPlain, {1'320, 0, 1'920, 400}},
        {L"-75", L"15000", {600, 400}, kPlain, {0, 640, 600, 1'040}},
        {L"2964", L"1416", {1'284, 985}, kSmall, {0, 40, 1'280, 1'024}},
        {L"-75", L"-18015", {400, 500}, kAbove, {0, -1'200, 400, -700}},
        {L"2964", L"1416", {1'284, 400}, kSmall, {0, 142, 1'280, 542}},
    };
    for (const auto& [left, top, size, monitor, place] : cases) {
        store(L"leftpos", left);
        store(L"toppos", top);
        EXPECT_EQ(restored({monitor}, size), place) << left << top;
    }
    // On its way from the first monitor it doubles its size.
    leave({kFine}, {4'000, 1'600, 5'200, 2'400});
    EXPECT_EQ(restored({kPlain, kFine}), (Area{4'000, 980, 5'200, 1'780}));
}
