#include "pickers/directory_picker.h"

#include <gtest/gtest.h>

#include "fakes/fake_controls.h"
#include "fakes/fake_files.h"

namespace {

using Lines = std::vector<std::wstring>;

class DirectoryPickerTest : public testing::Test {
 protected:
    DirectoryPickerTest() {
        list.severalSelectable = false;
        files.directories = {L"c:\\plans\\moteur\\Bielle", L"c:\\plans\\moteur\\arbre",
                             L"c:\\plans\\Zone"};
        files.add(L"c:\\plans\\moteur\\piece.SLDPRT");
    }

    bool open(int line) {
        list.select(line, true);
        return picker.openSelected();
    }

    FakeFiles files;
    FakeListBox list;
    DirectoryPicker picker{list, files};
};

}  // namespace

TEST_F(DirectoryPickerTest, ShowsTheAncestorsTheDirectoryAndWhatIsBelow) {
    EXPECT_TRUE(picker.setPath(L"c:\\plans\\moteur\\"));
    EXPECT_EQ(picker.path(), L"c:\\plans\\moteur");
    EXPECT_EQ(list.texts(),
              (Lines{L"c:\\", L"  plans", L"    moteur", L"      arbre", L"      Bielle"}));
    EXPECT_EQ(list.selection(), std::vector{2});
    EXPECT_EQ(picker.parent(), L"c:\\plans");
    EXPECT_EQ(picker.subdirectoryCount(), 2);
    EXPECT_EQ(picker.subdirectory(1), L"c:\\plans\\moteur\\Bielle");
    EXPECT_FALSE(picker.setPath(L"c:\\plans\\moteur"));
}

TEST_F(DirectoryPickerTest, OpensAncestorsAndSubdirectories) {
    picker.setPath(L"c:\\plans\\moteur");
    EXPECT_TRUE(open(3));
    EXPECT_EQ(picker.path(), L"c:\\plans\\moteur\\arbre");
    EXPECT_FALSE(open(3));
    EXPECT_TRUE(open(1));
    EXPECT_EQ(list.texts(), (Lines{L"c:\\", L"  plans", L"    moteur", L"    Zone"}));
    EXPECT_TRUE(open(0));
    EXPECT_EQ(picker.path(), L"c:\\");
    EXPECT_EQ(list.texts(), (Lines{L"c:\\", L"  plans"}));
    EXPECT_TRUE(open(1));
    EXPECT_EQ(picker.path(), L"c:\\plans");
    list.clearSelection();
    EXPECT_FALSE(picker.openSelected());
    EXPECT_EQ(picker.path(), L"c:\\plans");
}
