#include "pickers/drive_picker.h"

#include <gtest/gtest.h>

#include "fakes/fake_controls.h"
#include "fakes/fake_files.h"

TEST(DrivePicker, ChoosesTheDriveThatAPathBeginsWith) {
    FakeFiles files;
    files.presentDrives = {L'c', L'd', L'z'};
    FakeComboBox box;
    DrivePicker picker(box, files);
    picker.fill();
    EXPECT_EQ(box.lines, (std::vector<std::wstring>{L"c:", L"d:", L"z:"}));
    EXPECT_EQ(picker.drive(), L'\0');

    const struct {
        const wchar_t* path;
        wchar_t drive;
        bool changed;
    } cases[] = {
        {L"d:\\plans", L'd', true},  {L"D:\\", L'd', false}, {L"Z:", L'z', true},
        {L"e:\\plans", L'\0', true}, {L"c:\\x", L'c', true}, {L"\\\\srv\\part", L'\0', true},
        {L"c", L'\0', false},        {L"", L'\0', false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(picker.setDrive(c.path), c.changed) << c.path;
        EXPECT_EQ(picker.drive(), c.drive) << c.path;
    }
    box.selectLine(1);
    EXPECT_EQ(picker.drive(), L'd');
}
