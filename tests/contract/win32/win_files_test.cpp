// What the file layer promises beyond the shared contract: encodings, refusals, odd names, how
// directories are told apart.

#include "win32/files/win_files.h"

#include <windows.h>

#include "contract/machine.h"
#include "win32/files/win_written_files.h"
#include "win32/process/handles.h"

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
    for (const auto& file : {list, copy}) SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    files.keepCopy(list, copy);
    EXPECT_EQ(files.readBytes(copy), odd);
    files.remove(list);
    EXPECT_EQ(namesIn(directory), Texts{L"tarnwick-precedente.lst"});
    for (const std::string_view marks : {"marques", ""}) {
        SetFileAttributesW(copy.c_str(), FILE_ATTRIBUTE_READONLY);
        const auto record = WinRecordFiles().at(copy);
        marks.empty() ? void(record->clear()) : record->replace(marks);
        EXPECT_EQ(record->read().value_or(""), marks);
    }

    writeBytes(copy, "");
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

TEST_F(WinFilesTest, TakesPathsOfAnyLengthAndNamesThatEndWithADotOrABlank) {
    std::wstring deep = directory;
    for (int i = 0; i < 8; ++i) machine->addDirectory(deep += L'\\' + std::wstring(60, L'a'));
    machine->addDirectory(path(L"etc"));
    machine->addDirectory(path(L"etc."));
    for (const std::wstring& where : {deep, path(L"etc.")}) {
        files.replaceText(where + L"\\fin .", L"contenu");
        EXPECT_EQ(files.readText(where + L"\\fin ."), L"contenu");
        EXPECT_EQ(namesIn(where), Texts{L"fin ."});
        EXPECT_EQ(namesIn(path(L"etc")), Texts());
        EXPECT_FALSE(files.identify(where) == files.identify(path(L"etc")));
    }
}

// Whoever put it there: it must not take all memory at a start.
TEST_F(WinFilesTest, ReadsNoRecordOfMoreThan64Megabytes) {
    const std::wstring record = path(L"liste.reprise");
    for (const LONG size : {64 << 20, (64 << 20) + 1}) {
        {
            const UniqueHandle file(
                CreateFileW(record.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
            SetFilePointer(file.get(), size, nullptr, FILE_BEGIN);
            ASSERT_TRUE(SetEndOfFile(file.get()));
        }
        EXPECT_EQ(machine->records().at(record)->read().has_value(), size == 64 << 20);
    }
}

/// A directory of which the file system tells an identity of 128 bits, the last byte apart all
/// alike, or none; and the old one.
static DirectoryId idOf(std::optional<std::pair<BYTE, BYTE>> bytes, ULONGLONG volume, DWORD index) {
    struct Answers : IdentityCalls {
        std::optional<FILE_ID_INFO> wideAnswer;
        BY_HANDLE_FILE_INFORMATION narrowAnswer{};
        bool wide(HANDLE, FILE_ID_INFO& identity) override {
            if (wideAnswer) identity = *wideAnswer;
            return wideAnswer.has_value();
        }
        bool narrow(HANDLE, BY_HANDLE_FILE_INFORMATION& information) override {
            information = narrowAnswer;
            return true;
        }
    } answers;
    if (bytes) {
        FILE_ID_INFO& wide = answers.wideAnswer.emplace(FILE_ID_INFO{volume, {}});
        std::ranges::fill(wide.FileId.Identifier, bytes->first);
        wide.FileId.Identifier[15] = bytes->second;
    }
    answers.narrowAnswer.dwVolumeSerialNumber = static_cast<DWORD>(volume);
    answers.narrowAnswer.nFileIndexLow = index;
    DirectoryId id{};
    EXPECT_TRUE(identify(nullptr, id, answers));
    return id;
}

TEST(DirectoryIdentity, IsAllBitsOrTheOldOneWhereThereAreNone) {
    const auto all = std::pair<BYTE, BYTE>(1, 2), others = std::pair<BYTE, BYTE>(1, 3);
    EXPECT_EQ(idOf(all, 7, 1), idOf(all, 7, 2));
    EXPECT_FALSE(idOf(all, 7, 1) == idOf(others, 7, 1) || idOf(all, 7, 1) == idOf(all, 1, 1));
    for (const BYTE none : {BYTE{0}, BYTE{0xFF}}) {
        EXPECT_FALSE(idOf(std::pair(none, none), 7, 1) == idOf(std::pair(none, none), 7, 2));
    }
    EXPECT_EQ(idOf({}, 7, 1), idOf({}, 7, 1));
    EXPECT_FALSE(idOf({}, 7, 1) == idOf({}, 7, 2) || idOf({}, 7, 1) == idOf({}, 8, 1));
}

TEST(FoundName, IsWhatItsAttributesAndTagSay) {
    WIN32_FIND_DATAW found{};
    found.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    found.dwReserved0 = IO_REPARSE_TAG_SYMLINK;
    EXPECT_TRUE(entryOf(found).isLink);
}
