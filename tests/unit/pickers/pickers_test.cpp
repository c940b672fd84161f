#include "pickers/pickers.h"

#include "fakes/fake_controls.h"
#include "fakes/fake_files.h"
#include "fakes/fake_patience.h"
#include "pickers/paths.h"
#include "ports/search.h"
#include "ports/window.h"
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
    const struct : EventSink {
        void raise(int, Event) override {}
    } window;
    DirectoryPicker picker(list, label, {files, alone, patience}, window);
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
    picker.setDrive(L"D:\\Doc");
    EXPECT_EQ(picker.drive(), L'd');
    picker.setDrive(L"\\\\serveur\\part");
    EXPECT_EQ(picker.drive(), L'\0');
}

TEST(Paths, ShowWhereANameLeadsHoweverItIsSpelled) {
    const struct {
        const wchar_t *directory, *name, *path, *server;
    } cases[] = {
        {L"c:\\l", L"a.x", L"c:\\l\\a.x", L""},
        {L"c:\\", L".\\b\\..\\a.x", L"c:\\a.x", L""},
        {L"c:\\l", L"..\\..\\..\\a.x", L"c:\\a.x", L""},
        {L"c:\\l", L"d:a.x", L"d:\\a.x", L""},
        {L"c:\\l", L"D:/p//a.x", L"D:\\p\\a.x", L""},
        {L"\\\\srv\\part\\l", L"\\p\\a.x", L"\\\\srv\\part\\p\\a.x", L"SRV"},
        {L"c:\\l", L"//Srv/part/../a.x", L"\\\\Srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\\\?\\unc\\srv\\part\\a.x", L"\\\\srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\\\.\\UNC\\srv\\part\\a.x", L"\\\\srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\??\\d:\\a.x", L"d:\\a.x", L""},
        {L"c:\\l", L"//./\\\\?/UNC/srv/part/a.x", L"\\\\srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\\\?\\GLOBALROOT\\Device\\Mup\\srv\\a.x",
         L"c:\\l\\GLOBALROOT\\Device\\Mup\\srv\\a.x", L""},
        {L"c:\\l", L"\\\\srv\\a.x", L"\\\\srv\\a.x\\", L"SRV"},
        {L"c:\\l", L"\\\\srv", L"", L""},
        {L"c:\\l", L"\\\\srv\\..\\a.x", L"", L""},
    };
    for (const auto& c : cases) {
        const std::wstring path = resolvedPath(c.directory, c.name).value_or(L"");
        EXPECT_EQ(path, c.path) << c.name;
        EXPECT_EQ(serverOf(path), c.server) << c.name;
    }
}

TEST(DirectoryListing, KnowsThePathsOfDirectories) {
    const struct {
        const wchar_t *given, *reported, *parent, *child;
        bool isRoot;
    } cases[] = {
        {L"c:\\", L"c:\\", L"c:\\", L"c:\\x", true},
        {L"c:", L"c:\\", L"c:\\", L"c:\\x", true},
        {L"c:\\a\\", L"c:\\a", L"c:\\", L"c:\\a\\x", false},
        {L"c:\\a\\b c", L"c:\\a\\b c", L"c:\\a", L"c:\\a\\b c\\x", false},
        {L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part\\x", false},
        {L"\\\\srv\\part\\", L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part\\x", false},
        {L"\\\\srv\\part\\a", L"\\\\srv\\part\\a", L"\\\\srv\\part", L"\\\\srv\\part\\a\\x", false},
    };
    for (const auto& c : cases) {
        const std::wstring reported = reportedPath(c.given);
        EXPECT_EQ(reported, c.reported) << c.given;
        EXPECT_EQ(parentPath(reported), c.parent) << c.given;
        EXPECT_EQ(childPath(reported, L"x"), c.child) << c.given;
        EXPECT_EQ(isDriveRoot(reported), c.isRoot) << c.given;
    }
}
