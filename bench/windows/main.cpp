// The bench: times the program's own code, windows included, against bare Windows calls.
// bench-windows [--smoke] [--only ROW]... [--size DOCUMENTS]... DIRECTORY

#include <windows.h>

#include <commctrl.h>
#include <cstdio>
#include <fstream>
#include <objbase.h>
#include <set>
#include <stdexcept>

#include "common/runtime_error.h"
#include "rows.h"

namespace {

struct NamedRow {
    const char* name;
    Row (*measure)(const Setting&);
};

constexpr NamedRow kRows[] = {
    {"tree", rebuildOfTree},
    {"directory", rebuildOfDirectory},
    {"slow", searchOfSlowServer},
    {"answer", answerWhileSearching},
    {"stop", stopOfSearch},
    {"import", importOfList},
    {"far", importFromSlowServer},
    {"fill", listFill},
    {"next", nextDocument},
    {"filter", filter},
    {"depth", depthOfLines},
    {"choice", choiceOfLines},
    {"cad", cadCalls},
    {"alone", documentsAlone},
    {"halt", stopOfAlone},
    {"held", heldAlone},
    {"start", start},
    {"save", listFileSave},
    {"load", listFileLoad},
    {"mark", markKept},
    {"size", programSize},
    {"memory", memoryInUse},
};

void hurry(Setting& setting) {
    setting.sizes = {100};
    setting.rounds = {.least = 1, .most = 1, .enoughMilliseconds = 0};
}

int run(int count, char** arguments) {
    Setting setting;
    std::set<std::string> only;
    std::set<int> sizes;
    for (int i = 1; i < count; ++i) {
        const std::string argument = arguments[i];
        if (argument == "--smoke") {
            hurry(setting);
        } else if (argument == "--only" && i + 1 < count) {
            only.insert(arguments[++i]);
        } else if (argument == "--size" && i + 1 < count) {
            sizes.insert(std::stoi(arguments[++i]));
        } else {
            setting.directory = std::filesystem::absolute(argument);
        }
    }
    if (!sizes.empty()) setting.sizes.assign(sizes.begin(), sizes.end());
    require(!setting.directory.empty(), "a directory to work in");
    std::filesystem::create_directories(setting.directory);

    std::vector<Row> rows;
    for (const NamedRow& row : kRows) {
        if (!only.empty() && !only.contains(row.name)) continue;
        std::fprintf(stderr, "%s\n", row.name);
        rows.push_back(row.measure(setting));
    }
    const std::string table = tableOf(setting.sizes, rows);
    std::fputs(table.c_str(), stdout);
    std::ofstream(setting.directory / "results.md", std::ios::binary) << table;
    return 0;
}

}  // namespace

void require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(std::string("expected: ") + what);
}

int main(int count, char** arguments) {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_TAB_CLASSES};
    InitCommonControlsEx(&controls);
    try {
        return run(count, arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    } catch (const RuntimeError& error) {
        std::fprintf(stderr, "run-time error %d\n", error.number);
    }
    return 1;
}
