#include "pickers/directory_picker.h"

#include "fakes/fake_controls.h"
#include "fakes/fake_files.h"
#include "fakes/fake_patience.h"
#include "pickers/drive_picker.h"
#include "ports/workers.h"
#include "unit/unit_test.h"

TEST(DirectoryPicker, ShowsAndOpensAncestorsAndSubdirectories) {
    FakeFiles files;
    files.directories = {L"c:\\plans\\moteur\\Bielle", L"c:\\plans\\moteur\\arbre",
                         L"c:\\plans\\Zone"};
    files.add({L"c:\\plans\\moteur\\piece.SLDPRT"});
    FakeListBox list;
    list.severalSelectable = false;
    FakeControl label;
    NoWorkers alone;
    FakePatience patience;
    DirectoryPicker picker(list, label, {files, alone, patience});
    const auto open = [&](int line) {
        list.select(line, true);
        return picker.openSelected();
    };

    EXPECT_EQ(picker.open(L"c:\\plans\\moteur\\"), Opening::Another);
    EXPECT_EQ(picker.path(), L"c:\\plans\\moteur");
    EXPECT_EQ(list.texts(),
              (Texts{L"c:\\", L"  plans", L"    moteur", L"      arbre", L"      Bielle"}));
    EXPECT_EQ(list.selection(), std::vector{2});
    EXPECT_EQ(picker.open(L"c:\\plans\\moteur"), Opening::Same);

    EXPECT_EQ(open(3), Opening::Another);
    EXPECT_EQ(picker.path(), L"c:\\plans\\moteur\\arbre");
    EXPECT_EQ(open(3), Opening::Same);
    EXPECT_EQ(open(1), Opening::Another);
    EXPECT_EQ(list.texts(), (Texts{L"c:\\", L"  plans", L"    moteur", L"    Zone"}));
    EXPECT_EQ(open(0), Opening::Another);
    list.clearSelection();
    EXPECT_EQ(picker.openSelected(), Opening::Same);
    EXPECT_EQ(picker.path(), L"c:\\");
}

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
