// What becomes of list files that are not what they should be. The user's guide tells the same.

#include <windows.h>

#include <gtest/gtest.h>

#include "contract/machine.h"
#include "platform/win32/files/file_replacement.h"
#include "unit/raised.h"
#include "worklist/list_file.h"

namespace {

struct Outcome {
    int error = 0;
    int lines = 0;
    std::string lastPath = {};
};

class HostileLists : public testing::Test {
 protected:
    void expectOutcome(std::string_view bytes, const Outcome& wanted) {
        SCOPED_TRACE(std::string(bytes.substr(0, 20)));
        replaceFile(file, [&](const ByteSink& sink) { sink(bytes); });
        WorkList list;
        const int error = raised([&] { parseListFile(files.read(file), list); });
        EXPECT_EQ(error, wanted.error);
        if (error != 0) return;
        EXPECT_EQ(list.lineCount(), wanted.lines);
        EXPECT_TRUE(list.lines[list.last].path == wanted.lastPath);
    }

    std::unique_ptr<Machine> machine = makeMachine();
    Files& files = machine->files();
    std::wstring file = machine->directory() + L"\\tarnwick.lst";
};

}  // namespace

TEST_F(HostileLists, AreReadOrRefusedAsDocumented) {
    std::string full;
    for (int i = 0; i < 8001; ++i) full += "0  c:\\f\r\n";
    const std::string megabyte(1 << 20, 'a');
    using std::string_literals::operator""s;

    expectOutcome(full, {.lines = 8001, .lastPath = "c:\\f"});
    expectOutcome(full + "0  c:\\f\r\n", {.error = 9});
    expectOutcome("0  " + megabyte, {.lines = 1, .lastPath = megabyte});
    expectOutcome("0  a\0b\r\n"s, {.lines = 1, .lastPath = "a\0b"s});
    expectOutcome("\0\0\0\0\r\n"s, {.lines = 1, .lastPath = "\0"s});
    expectOutcome(
        "\xFF\xFE"
        "0\0 \0 \0c\0:\0\r\0\n\0"s,
        {.lines = 1, .lastPath = "c:"});  // UTF-16
    expectOutcome("0  c:\\\xE9\r\n0  c:\\\xC3\xA9", {.lines = 2, .lastPath = "c:\\\xC3\xA9"});
    expectOutcome("0  c:\\a\r\n1  c:\\b", {.lines = 2, .lastPath = "c:\\b"});
    expectOutcome("0  c:\\a\r1  c:\\b\r", {.lines = 2, .lastPath = "c:\\b"});
    expectOutcome("0  c:\\a\n1  c:\\b\n", {.lines = 2, .lastPath = "c:\\b"});
    expectOutcome("0  c:\\a\r\n\r\n", {.error = 5});  // an empty line
}
