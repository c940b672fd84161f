#include "worklist/list_file.h"

#include "unit/unit_test.h"

static std::string linesToDo(int count) {
    std::string text;
    for (int i = 0; i < count; ++i) appendFreshLine(text, L"c:\\fichier" + std::to_wstring(i));
    return text;
}

TEST(ListFile, EachLineIsACodeAndAPath) {
    using std::string_literals::operator""s;
    const std::tuple<std::string, std::string, std::string, bool> cases[] = {
        {"0  c:\\a b.SLDPRT", "0", "c:\\a b.SLDPRT", false},
        {"9  c:\\f", "9", "c:\\f", false},
        {"12  c:\\f", "2", "c:\\f", true},
        {"110  c:\\f", "100", "c:\\f", true},  // three characters are taken, and not four
        {"1100  c:\\f", "100", "0  c:\\f", true},
        {"010  c:\\f", "0", "c:\\f", true},     // a number over nine, however it is spelled
        {"003  c:\\f", "003", "c:\\f", false},  // up to nine the code stays as it is spelled
        {" 1 c:\\f", "1", "c:\\f", false},
        {"1 0c:\\f", "1 0", "c:\\f", false},
        {"12xc:\\f", "2", "c:\\f", true},  // the leading digits count
        {"-5 c:\\f", "-5", "c:\\f", false},
        {"0c:\\f.SLDPRT", "0c:", "\\f.SLDPRT", false},
        {"0       c:\\f   ", "0", "c:\\f", false},
        {"0  \tc:\\f", "0", "\tc:\\f", false},  // blanks are trimmed, tabs aren't
        {"   c:\\f", "", "c:\\f", false},
        {"é€  c:\\été", "é€", "c:\\été", false},  // characters count, not bytes
        {"0  ", "0", "", false},
        {"0  a\0b"s, "0", "a\0b"s, false},
    };
    for (const auto& [line, code, path, reload] : cases) {
        WorkList list;
        list.lines.edit(0)->reload = true;
        ASSERT_TRUE(parseListFile(line, list)) << line;
        const WorkLine& read = list.lines[0];
        EXPECT_EQ(std::tuple(read.code.text(), read.path, read.reload, list.last),
                  std::tuple(code, path, reload, 0))
            << line;
    }
}

std::string written(WorkList& list, int lineCount) {
    std::string text;
    formatListFile(list, lineCount, [&](std::string_view piece) { text += piece; });
    return text;
}

TEST(ListFile, IsWrittenLineByLineWhateverOfItIsAsItWasRead) {
    const std::string many = linesToDo(3000);
    WorkList list;
    ASSERT_TRUE(parseListFile(many + "0  c:\\a\r\n 1 c:\\b\n2  c:\\c\r\n2  c:\\d", list));
    EXPECT_EQ(written(list, 3004), many + "0  c:\\a\r\n1  c:\\b\r\n2  c:\\c\r\n2  c:\\d\r\n");
    list.lines.edit(3000)->code = LineState::Done;
    list.lines.edit(3002)->path = list.lines[0].path;
    EXPECT_EQ(written(list, 3003), many + "1  c:\\a\r\n1  c:\\b\r\n2  c:\\fichier0\r\n");
    EXPECT_EQ(written(list, 0), "");
}

TEST(ListFile, ALineShorterThanItsCodeIsAnInvalidArgument) {
    for (const char* text : {"0  a\r\n\r\n", "0  a\n0 ", "0  a\n\r1  b", "0  a\r\n\x1a"}) {
        WorkList list;
        const auto error = raisedError([&] { parseListFile(text, list, L"c:\\x.lst"); });
        EXPECT_EQ(error.number, 5) << text;
        EXPECT_TRUE(error.text.ends_with(L"\r\nLigne 2 de c:\\x.lst")) << error.text;
    }
}

TEST(ListFile, HoldsAsManyLinesAsTheTable) {
    WorkList list;
    ASSERT_TRUE(parseListFile(linesToDo(8001), list));
    EXPECT_EQ(list.last, 8000);
    EXPECT_EQ(written(list, 8001), linesToDo(8001));
    EXPECT_EQ(raised([&] { written(list, 8002); }), 9);
    EXPECT_EQ(raised([&] { parseListFile(linesToDo(8002), list); }), 9);
}
