#include "app/program.h"
#include "fakes/fake_platform.h"
#include "unit/unit_test.h"

TEST(Guide, IsAskedForOnlyWhereItsPageStands) {
    const struct {
        const wchar_t* beside;
        bool browser;
        std::size_t boxes;
    } cases[] = {{L"guide.html", true, 0}, {L"guide.html", false, 1}, {L"guide.html.exe", true, 1}};
    for (const auto& [beside, browser, boxes] : cases) {
        FakePlatform machine;
        machine.files.add({L"c:\\tarnwick\\" + std::wstring(beside)});
        if (browser) machine.desktop.openable = L"c:\\tarnwick\\guide.html";
        showGuide(machine.files, machine.desktop, machine.boxes, L"c:\\tarnwick");
        EXPECT_EQ(machine.boxes.shown.size(), boxes) << beside << browser;
    }
}
