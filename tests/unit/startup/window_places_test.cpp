#include "startup/window_places.h"

#include <gtest/gtest.h>

#include "fakes/fake_settings.h"
#include "fakes/fake_window.h"
#include "unit/raised.h"

namespace {

struct NoEvents : EventSink {
    void raise(int, Event) override {}
};

struct PlaceCase {
    PlacedWindow window;
    const wchar_t* application;
    const wchar_t* section;
    const wchar_t* top;
    const wchar_t* left;
};

constexpr PlaceCase kPlaces[] = {
    {PlacedWindow::Form1, L"tarnwick", L"startup", L"toppos", L"leftpos"},
    {PlacedWindow::Form2, L"tarnwick", L"startup", L"toppos2", L"leftpos2"},
    {PlacedWindow::Form3, L"tarnwick", L"startup", L"toppos3", L"leftpos3"},
    {PlacedWindow::Form4, L"mervale", L"listerepert", L"toppos4", L"leftpos4"},
};

}  // namespace

TEST(WindowPlace, IsReadUnderTheWindowsOwnKeys) {
    for (const PlaceCase& c : kPlaces) {
        FakeSettings settings;
        settings.write(c.application, c.section, c.top, L"-15");
        settings.write(c.application, c.section, c.left, L" 30000 ");
        Module1 module;
        readPlace(settings, module, c.window);
        EXPECT_EQ(module.place(c.window).top, -15) << c.top;
        EXPECT_EQ(module.place(c.window).left, 30000) << c.left;
    }
}

TEST(WindowPlace, HasADefault) {
    FakeSettings settings;
    Module1 module;
    readPlace(settings, module, PlacedWindow::Form2);
    EXPECT_EQ(module.place(PlacedWindow::Form2).top, 1416);
    EXPECT_EQ(module.place(PlacedWindow::Form2).left, 2964);
}

TEST(WindowPlace, IsSavedUnderTheWindowsOwnKeysAlone) {
    for (const PlaceCase& c : kPlaces) {
        FakeSettings settings;
        NoEvents sink;
        FakeWindow window(0, sink);
        window.moveTo(150, -300);
        savePlace(settings, c.window, window);
        EXPECT_EQ(settings.read(c.application, c.section, c.top, L"none"), L"150");
        EXPECT_EQ(settings.read(c.application, c.section, c.left, L"none"), L"-300");
        EXPECT_EQ(settings.entries.size(), 2U);
    }
}

TEST(WindowPlace, SavedFarOffCanBeReadBack) {
    FakeSettings settings;
    NoEvents sink;
    FakeWindow window(0, sink);
    window.moveTo(-480'000, 57'600);
    savePlace(settings, PlacedWindow::Form1, window);
    Module1 module;
    readPlace(settings, module, PlacedWindow::Form1);
    EXPECT_EQ(module.place(PlacedWindow::Form1).top, -32768);
    EXPECT_EQ(module.place(PlacedWindow::Form1).left, 32767);
}

TEST(WindowPlace, ThatIsNoSixteenBitNumberIsAnError) {
    FakeSettings settings;
    Module1 module;
    settings.write(L"tarnwick", L"startup", L"leftpos3", L"");
    EXPECT_EQ(raised([&] { readPlace(settings, module, PlacedWindow::Form3); }), 13);
    settings.write(L"tarnwick", L"startup", L"toppos3", L"-32769");
    EXPECT_EQ(raised([&] { readPlace(settings, module, PlacedWindow::Form3); }), 6);
}
