// What the file layer promises beyond the shared contract: encodings, refusals, odd names.

#include <windows.h>

#include "contract/machine.h"
#include "win32/process/handles.h"

namespace {

struct WinFilesTest : ContractTest {
    void writeBytes(const std::wstring& file, std::string_view bytes) {
        files.replace(file, [&](const ByteSink& sink) { sink(bytes); });
    }

    /// Another program reads the file and lets others read only.
    static UniqueHandle heldByAReader(const std::wstring& file) {
        return UniqueHandle(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                        OPEN_EXISTING, 0, nullptr));
    }

    /// Replacing the list file fails so, and nothing changes.
    void expectRefused(int number, const WriteContent& write) {
        EXPECT_EQ(raised([&] { files.replace(path(L"tarnwick.lst"), write); }), number);
        EXPECT_EQ(files.readBytes(path(L"tarnwick.lst")), "ancien");
        EXPECT_EQ(namesIn(directory), Texts{L"tarnwick.lst"});
    }
};

}  // namespace

TEST_F(WinFilesTest, LeavesAListThatCannotBeReplacedAsItIs) {
    const std::wstring list = path(L"tarnwick.lst");
    const auto write = [](const ByteSink& file) { file("nouveau"); };
    writeBytes(list, "ancien");
    expectRefused(5, [](const ByteSink& file) {
        file("nouv");
        throw errors::unwritableText();
    });
    SetFileAttributesW(list.c_str(), FILE_ATTRIBUTE_READONLY);
    expectRefused(75, write);
    SetFileAttributesW(list.c_str(), FILE_ATTRIBUTE_NORMAL);
    const UniqueHandle held = heldByAReader(list);
    expectRefused(70, write);
}

TEST_F(WinFilesTest, KeepsACopyOfAnyBytesOverAReadOnlyFileAndRemovesOne) {
    const std::wstring list = path(L"tarnwick.lst");
    const std::wstring copy = path(L"tarnwick-precedente.lst");
    const std::string_view odd("0  \xE9t\xE9\0\xFF", 8);
    writeBytes(list, odd);
    writeBytes(copy, "d'avant");
    for (const auto& file : {list, copy}) {
        SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    }
    files.keepCopy(list, copy);
    EXPECT_EQ(files.readBytes(copy), odd);
    files.remove(list);
    EXPECT_EQ(namesIn(directory), Texts{L"tarnwick-precedente.lst"});

    const UniqueHandle held = heldByAReader(copy);
    EXPECT_EQ(raised([&] { files.remove(copy); }), 70);
}

TEST_F(WinFilesTest, TellsWhatIsWrongWithAPath) {
    EXPECT_EQ(raised([&] { files.readText(path(L"absent\\tarnwick.lst")); }), 76);
    EXPECT_EQ(raised([&] { files.replaceText(path(L"absent\\tarnwick.lst"), L""); }), 76);
    EXPECT_EQ(raised([&] { files.readText(directory); }), 75);
    EXPECT_EQ(raised([&] { files.replaceText(directory, L""); }), 75);
    writeBytes(path(L"fichier"), "");
    EXPECT_EQ(raised([&] { namesIn(path(L"fichier")); }), 76);
}

TEST_F(WinFilesTest, TakesPathsOfAnyLength) {
    std::wstring deep = directory;
    for (int i = 0; i < 8; ++i) {
        deep += L'\\' + std::wstring(60, L'a');
        machine->addDirectory(deep);
    }
    ASSERT_GT(deep.size(), 480U);
    files.replaceText(deep + L"\\f.SLDPRT", L"contenu");
    EXPECT_EQ(files.readText(deep + L"\\f.SLDPRT"), L"contenu");
    EXPECT_EQ(namesIn(deep), Texts{L"f.SLDPRT"});
    EXPECT_FALSE(files.identify(deep) == files.identify(directory));
}

TEST_F(WinFilesTest, TakesNamesThatEndWithADotOrABlank) {
    machine->addDirectory(path(L"etc."));
    machine->addDirectory(path(L"etc"));
    files.replaceText(path(L"etc.\\fin ."), L"contenu");
    EXPECT_EQ(files.readText(path(L"etc.\\fin .")), L"contenu");
    EXPECT_EQ(namesIn(path(L"etc.")), Texts{L"fin ."});
    EXPECT_EQ(namesIn(path(L"etc")), Texts());
    EXPECT_FALSE(files.identify(path(L"etc.")) == files.identify(path(L"etc")));
}
