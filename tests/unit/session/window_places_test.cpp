#include "session/window_places.h"

#include <gtest/gtest.h>

#include "fakes/fake_settings.h"
#include "fakes/fake_window.h"

namespace {

struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

}  // namespace

TEST(WindowPlaces, SavedFarOffCanBeReadBack) {
    FakeSettings settings;
    NoEvents sink;
    FakeWindow window(0, sink);
    window.moveTo(-480'000, 57'600);
    WindowPlaces places(settings);
    places.save(PlacedWindow::Selection, window);
    places.readAll();
    places.restore(PlacedWindow::Selection, window);
    EXPECT_EQ(window.topTwips, -32768);
    EXPECT_EQ(window.leftTwips, 32767);
}
