#include "session/window_places.h"

#include <gtest/gtest.h>

#include "fakes/fake_settings.h"
#include "fakes/fake_window.h"

namespace {

struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

}  // namespace

TEST(WindowPlaces, AreKeptUnderKeysOfTheirOwnWithinSixteenBits) {
    const struct {
        PlacedWindow which;
        const wchar_t *application, *section, *top, *left;
    } cases[] = {
        {PlacedWindow::Selection, L"tarnwick", L"startup", L"toppos", L"leftpos"},
        {PlacedWindow::ExistingList, L"tarnwick", L"startup", L"toppos2", L"leftpos2"},
        {PlacedWindow::Tracking, L"tarnwick", L"startup", L"toppos3", L"leftpos3"},
        {PlacedWindow::SearchFolders, L"mervale", L"listerepert", L"toppos4", L"leftpos4"},
    };
    NoEvents sink;
    FakeWindow window(0, sink);
    for (const auto& c : cases) {
        FakeSettings settings;
        WindowPlaces places(settings);
        const auto expectPlace = [&](int top, int left) {
            places.readAll();
            places.restore(c.which, window);
            EXPECT_EQ(std::pair(window.topTwips, window.leftTwips), std::pair(top, left)) << c.top;
        };
        expectPlace(1416, 2964);
        window.moveTo(-480'000, 57'600);
        places.save(c.which, window);
        EXPECT_EQ(settings.read(c.application, c.section, c.top, L""), L"-32768");
        EXPECT_EQ(settings.read(c.application, c.section, c.left, L""), L"32767");
        expectPlace(-32768, 32767);
    }
}
