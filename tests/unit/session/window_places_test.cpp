#include "session/window_places.h"

#include <gtest/gtest.h>

#include "fakes/fake_settings.h"
#include "fakes/fake_window.h"

namespace {

struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

}  // namespace

TEST(WindowPlace, SavedFarOffCanBeReadBack) {
    FakeSettings settings;
    NoEvents sink;
    FakeWindow window(0, sink);
    window.moveTo(-480'000, 57'600);
    savePlace(settings, PlacedWindow::Selection, window);
    Module1 module;
    readPlace(settings, module, PlacedWindow::Selection);
    EXPECT_EQ(module.place(PlacedWindow::Selection).top, -32768);
    EXPECT_EQ(module.place(PlacedWindow::Selection).left, 32767);
}
