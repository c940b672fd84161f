#include "pickers/drive_picker.h"

#include <gtest/gtest.h>

#include "fakes/fake_controls.h"
#include "fakes/fake_files.h"

TEST(DrivePicker, FindsTheDriveOfAPathInAnyCase) {
    FakeFiles files;
    files.presentDrives = {L'c', L'd'};
    FakeComboBox box;
    DrivePicker picker(box, files);
    picker.fill();
    EXPECT_TRUE(picker.setDrive(L"D:\\Doc"));
    EXPECT_EQ(picker.drive(), L'd');
    EXPECT_FALSE(picker.setDrive(L"d:"));
    EXPECT_TRUE(picker.setDrive(L"\\\\serveur\\part"));
    EXPECT_EQ(picker.drive(), L'\0');
}
