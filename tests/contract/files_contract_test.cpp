#include "contract/machine.h"

using FilesContract = ContractTest;

TEST_F(FilesContract, TextIsReadBackAsItWasWritten) {
    for (const std::wstring& text :
         {std::wstring(L"0  c:\\été\r\n"), std::wstring(L"\r\n\n\r"), std::wstring(),
          std::wstring(L"a\0b", 3), std::wstring(L"\U0001F527\u20AC\uFFFD"),
          std::wstring(1'000'000, L'é'), std::wstring(L"court")}) {
        files.replaceText(path(L"tarnwick.lst"), text);
        EXPECT_EQ(files.readText(path(L"tarnwick.lst")), text);
    }
    EXPECT_EQ(namesIn(directory), Texts{L"tarnwick.lst"});
}

TEST_F(FilesContract, RemovedOrMissingIsNotFound) {
    files.replaceText(path(L"tarnwick.lst"), L"");
    EXPECT_EQ(files.kindOf(path(L"tarnwick.lst")), PathKind::File);
    files.remove(path(L"tarnwick.lst"));
    EXPECT_EQ(files.kindOf(path(L"tarnwick.lst")), PathKind::Nothing);
    for (const wchar_t* nothing : {L"absent\\tarnwick.lst", L"a?.SLDPRT", L"file:\\serveur\\a"}) {
        EXPECT_EQ(files.kindOf(path(nothing)), PathKind::Nothing) << nothing;
    }
    EXPECT_EQ(files.kindOf(directory), PathKind::Directory);
    EXPECT_EQ(raised([&] { files.remove(path(L"tarnwick.lst")); }), 53);
    EXPECT_EQ(raised([&] { files.readText(path(L"tarnwick.lst")); }), 53);
    EXPECT_EQ(raised([&] { namesIn(path(L"absent")); }), 76);
    EXPECT_EQ(raised([&] { files.identify(path(L"absent")); }), 76);
}

TEST_F(FilesContract, DirectoryIsVisitedEntryByEntry) {
    files.replaceText(path(L"é.SLDPRT"), L"");
    files.replaceText(path(L"caché.SLDASM"), L"");
    machine->hide(path(L"caché.SLDASM"));
    machine->addDirectory(path(L"vide"));
    machine->hide(path(L"vide"));
    machine->addDirectory(path(L"système"));
    machine->hide(path(L"système"), true);
    machine->addDirectory(path(L"plein"));
    files.replaceText(path(L"plein\\b.SLDPRT"), L"");
    EXPECT_EQ(namesIn(directory),
              (Texts{L"?caché.SLDASM", L"?système\\", L"plein\\", L"vide\\", L"é.SLDPRT"}));
    EXPECT_EQ(namesIn(path(L"vide")), Texts());
    EXPECT_EQ(namesIn(path(L"plein")), Texts{L"b.SLDPRT"});
    EXPECT_EQ(namesIn(path(L"plein\\")), Texts{L"b.SLDPRT"});
}

TEST_F(FilesContract, DirectoryIsTheSameByEveryPathToIt) {
    machine->addDirectory(path(L"a"));
    machine->addDirectory(path(L"b"));
    EXPECT_EQ(files.identify(path(L"a")), files.identify(path(L"a\\")));
    EXPECT_FALSE(files.identify(path(L"a")) == files.identify(path(L"b")));
    EXPECT_FALSE(files.identify(path(L"a")) == files.identify(directory));
}

TEST_F(FilesContract, ARecordGrowsUntilItIsClearedOrSomebodyTakesIt) {
    const auto record = machine->records().at(path(L"liste.reprise"));
    const auto bytes = [&] { return record->read().value_or("none"); };
    EXPECT_EQ(raised([&] { record->append("a", RecordFile::Flush::Now); }), 53);
    record->clear();
    EXPECT_EQ(bytes(), "none");
    record->replace("ab");
    record->append("cd", RecordFile::Flush::Later);
    record->append("ef", RecordFile::Flush::Now);
    EXPECT_EQ(bytes(), "abcdef");
    EXPECT_TRUE(record->clear());
    EXPECT_EQ(bytes(), "");
    record->remove();
    EXPECT_EQ(bytes(), "none");
}

TEST_F(FilesContract, SettingsAreReadBackByTheirKeyInAnyCase) {
    Settings& settings = machine->settings();
    const auto read = [&] {
        return settings.read(L"tarnwick contract", L"startup", L"regcheck", L"absent");
    };
    EXPECT_EQ(read(), L"absent");
    for (const std::wstring& value :
         {std::wstring(L"-30"), std::wstring(), std::wstring(L" é\t\"œ\" "),
          std::wstring(5000, L'9'), std::wstring(L"%PATH%")}) {
        settings.write(L"tarnwick contract", L"startup", L"RegCheck", value);
        EXPECT_EQ(read(), value);
    }
}
