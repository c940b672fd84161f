// Looking for the documents that a file names, and listing them.

#include <windows.h>

#include <fstream>

#include "common/encoding.h"
#include "input/judge.h"
#include "ports/search.h"
#include "rows.h"
#include "sample_tree.h"
#include "selection/document_import.h"
#include "selection/document_search.h"
#include "selection/selection_ids.h"
#include "selection/selection_list.h"
#include "stage.h"

namespace {

/// Each document answers after three milliseconds.
struct SlowToTell : WinFiles {
    PathKind kindOf(const std::wstring& path) override {
        Sleep(3);
        return WinFiles::kindOf(path);
    }
};

std::vector<std::wstring> sampleDocuments(const Setting& setting, int count) {
    const std::wstring directory = flatDirectory(setting.directory, count).wstring();
    std::vector<std::wstring> paths;
    WinFiles().visit(directory, [&](const DirectoryEntry& entry) {
        paths.push_back(directory + L'\\' + std::wstring(entry.name));
    });
    return paths;
}

/// A text file with the path of each document.
std::wstring fileNaming(const std::vector<std::wstring>& documents, const Setting& setting) {
    std::string text;
    for (const std::wstring& path : documents) {
        appendUtf8(text, path);
        text += "\r\n";
    }
    const auto file = setting.directory / "import.txt";
    std::ofstream(file, std::ios::binary) << text;
    return file.wstring();
}

void importInto(FoundDocuments& found, const SearchServices& services, const std::wstring& file) {
    const NoEvents window;
    const Searching searching(services.watch, window, SearchKind::Documents);
    DocumentImport import(services);
    const bool all = import.gatherFile(file) == DocumentImport::End::Complete &&
                     import.look() == DocumentImport::End::Complete;
    require(all && import.remains().leftOut == 0, "all documents imported");
    found.take(import.takeDocuments());
}

Comparison compareImport(const Setting& setting, int size) {
    const auto documents = sampleDocuments(setting, size);
    const std::wstring file = fileNaming(documents, setting);
    Stage stage;
    NoEvents events;
    const auto window = stage.platform.windows.create({IDD_FORM1, {}}, events);
    window->show();
    FoundDocuments found;
    SelectionList list(window->listBox(IDC_FORM1_LIST1), found);
    const auto floor = [&] {
        require(!stage.platform.files.readBytes(file).empty(), "a file to read");
        WIN32_FILE_ATTRIBUTE_DATA data;
        for (const std::wstring& path : documents) {
            require(GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data), "a document");
        }
    };
    const auto subject = [&] {
        importInto(found, stage.platform.search, file);
        list.fill(0, [](int) { return true; });
    };
    const Comparison result = compare(setting.rounds, {floor}, {subject});
    require(list.chosenCount() == size, "all documents listed and chosen");
    return result;
}

}  // namespace

Row importOfList(const Setting& setting) {
    Row row{.work = "documents that a file names: read, looked for, listed",
            .floor = "reading the file, one `GetFileAttributesEx` each",
            .ratios = {},
            .goal = "<= 1.30",
            .limit = 1.30};
    for (const int size : setting.sizes) {
        const Comparison compared = compareImport(setting, size);
        row.ratios[size] = row.judged = compared.ratio;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    return row;
}

Row importFromSlowServer(const Setting& setting) {
    const int size = setting.sizes.back();
    const std::wstring file = fileNaming(sampleDocuments(setting, size), setting);
    SlowToTell files;
    Judge judge(doubleClickLimits(), [] { return Moment{GetTickCount64()}; });
    WinSearchWatch watch(judge);
    const auto import = [&](Workers& workers) {
        FoundDocuments found;
        importInto(found, {files, workers, watch}, file);
        require(found.count() == size, "all documents imported");
    };
    NoWorkers alone;
    PoolWorkers pool;
    const Rounds once{.least = 1, .most = 1, .enoughMilliseconds = 0};
    const Comparison compared = compare(once, {[&] { import(alone); }}, {[&] { import(pool); }});
    return {.work = std::to_string(size) + " documents of a file, each of which answers after 3 ms",
            .floor = "one after the other",
            .ratios = {{0, compared.ratio}},
            .goal = "<= 0.20",
            .judged = compared.ratio,
            .limit = 0.20,
            .note = "floor " + milliseconds(compared.floorMilliseconds)};
}
