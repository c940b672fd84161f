#include "worklist/list_file.h"

#include <gtest/gtest.h>

#include "unit/raised.h"

namespace {

std::wstring linesToDo(int count) {
    std::wstring text;
    for (int i = 0; i < count; ++i) appendFreshLine(text, L"c:\\f" + std::to_wstring(i));
    return text;
}

bool read(std::wstring_view text, WorkList& list) {
    ListFileReader reader(list);
    if (!text.empty()) reader.add(text);
    return reader.finish();
}

std::wstring saved(WorkList& list, long lineCount) {
    std::wstring text;
    formatListFile(list, lineCount, [&](std::wstring_view piece) { text += piece; });
    return text;
}

}  // namespace

TEST(ListFile, EachLineIsACodeAndAPath) {
    const struct {
        const wchar_t* line;
        const wchar_t* code;
        const wchar_t* path;
        const wchar_t* reload;
    } cases[] = {
        {L"0  c:\\a b.SLDPRT", L"0", L"c:\\a b.SLDPRT", L""},
        {L"9  c:\\f", L"9", L"c:\\f", L""},
        {L"12  c:\\f", L"2", L"c:\\f", L"1"},
        {L"110  c:\\f", L"100", L"c:\\f", L"1"},  // three characters are taken, and not four
        {L"1100  c:\\f", L"100", L"0  c:\\f", L"1"},
        {L"010  c:\\f", L"0", L"c:\\f", L"1"},   // a number over nine, however it is spelled
        {L"003  c:\\f", L"003", L"c:\\f", L""},  // up to nine the code stays as it is spelled
        {L" 1 c:\\f", L"1", L"c:\\f", L""},
        {L"1 0c:\\f", L"1 0", L"c:\\f", L""},
        {L"12xc:\\f", L"2", L"c:\\f", L"1"},  // the leading digits count
        {L"a  c:\\f", L"a", L"c:\\f", L""},
        {L"-5 c:\\f", L"-5", L"c:\\f", L""},
        {L"0c:\\f.SLDPRT", L"0c:", L"\\f.SLDPRT", L""},
        {L"0       c:\\f   ", L"0", L"c:\\f", L""},
        {L"0  \tc:\\f", L"0", L"\tc:\\f", L""},  // blanks are trimmed, tabs aren't
        {L"   c:\\f", L"", L"c:\\f", L""},
        {L"0  ", L"0", L"", L""},
    };
    for (const auto& c : cases) {
        WorkList list;
        list.EtatFich[0].reload = L"1";
        ASSERT_TRUE(read(c.line, list)) << c.line;
        EXPECT_EQ(list.EtatFich[0].code, c.code) << c.line;
        EXPECT_EQ(list.EtatFich[0].path, c.path) << c.line;
        EXPECT_EQ(list.EtatFich[0].reload, c.reload) << c.line;
        EXPECT_EQ(list.DerFich, 0) << c.line;
    }
}

TEST(ListFile, AnEmptyTextLeavesTheListAlone) {
    WorkList list;
    list.DerFich = 5;
    EXPECT_FALSE(read(L"", list));
    EXPECT_EQ(list.DerFich, 5);
}

TEST(ListFile, ALineShorterThanItsCodeIsAnInvalidArgument) {
    for (const wchar_t* text : {L"\r\n", L"0", L"0 ", L"0  a\r\n\r\n", L"0  a\r\n\r\n1  b\r\n",
                                L"0  a\n\r1  b", L"0  a\r\n\x1a"}) {
        WorkList list;
        EXPECT_EQ(raised([&] { read(text, list); }), 5) << text;
    }
}

TEST(ListFile, HoldsAsManyLinesAsTheTable) {
    WorkList list;
    ASSERT_TRUE(read(linesToDo(8001), list));
    EXPECT_EQ(list.DerFich, 8000);
    EXPECT_EQ(list.EtatFich[8000].path, L"c:\\f8000");
    EXPECT_EQ(saved(list, 8001), linesToDo(8001));
    EXPECT_EQ(raised([&] { saved(list, 8002); }), 9);

    WorkList another;
    EXPECT_EQ(raised([&] { read(linesToDo(8002), another); }), 9);
}

TEST(ListFile, AFlaggedCodeGrowsAtEachSave) {
    WorkList list;
    ASSERT_TRUE(read(L"10  c:\\a\r\n0  c:\\b\r\n", list));
    EXPECT_EQ(saved(list, 2), L"10  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(list.EtatFich[0].code, L"10");
    EXPECT_EQ(list.EtatFich[1].code, L"0");
    EXPECT_EQ(saved(list, 2), L"110  c:\\a\r\n0  c:\\b\r\n");
    EXPECT_EQ(list.EtatFich[0].code, L"110");
}
