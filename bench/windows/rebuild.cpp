// The selection window's rebuild, against one bare pass over the same directories.

#include <windows.h>

#include "common/numbers.h"
#include "rows.h"
#include "sample_tree.h"
#include "shown_selection.h"

namespace {

bool isDocument(const wchar_t* name) {
    const wchar_t* dot = wcsrchr(name, L'.');
    return dot && (_wcsicmp(dot, L".SLDPRT") == 0 || _wcsicmp(dot, L".SLDASM") == 0 ||
                   _wcsicmp(dot, L".SLDDRW") == 0);
}

/// Reads a directory and, if wanted, all below it; counts the documents.
int barePass(const std::wstring& directory, bool deep) {
    WIN32_FIND_DATAW found;
    HANDLE search = FindFirstFileExW((directory + L"\\*").c_str(), FindExInfoBasic, &found,
                                     FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    require(search != INVALID_HANDLE_VALUE, "a directory that can be read");
    int documents = 0;
    do {
        const wchar_t* name = found.cFileName;
        if (!(found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)) {
            documents += isDocument(name);
        } else if (deep && wcscmp(name, L".") != 0 && wcscmp(name, L"..") != 0) {
            documents += barePass(directory + L"\\" + name, true);
        }
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return documents;
}

Comparison compareRebuild(const Setting& setting, const std::filesystem::path& directory,
                          int documents, bool deep) {
    ShownSelection window(directory, deep);
    const auto floor = [&] {
        require(barePass(directory.wstring(), deep) == documents, "all documents found");
    };
    // By the check box, which empties the table first: after a search with 8001 bare names the next
    // one would take the last document for present.
    const auto subject = [&] { window.form().sousrep_Click(); };
    const Comparison result = compare(setting.rounds, {floor}, {subject});
    require(window.lineCount() == documents, "all documents listed");
    return result;
}

}  // namespace

Row rebuildOfTree(const Setting& setting) {
    Row row{.work = "search of a tree: walk, order, table, list, counters",
            .floor = "one bare FindFirstFileEx pass",
            .ratios = {},
            .goal = "<= 1.10",
            .limit = 1.10};
    for (const int size : setting.sizes) {
        const auto tree = documentTree(setting.directory, size);
        const Comparison compared = compareRebuild(setting, tree, size, true);
        row.ratios[size] = row.judged = compared.ratio;
        row.note = std::to_string(size * 5 / 2) + " directories, floor " +
                   milliseconds(compared.floorMilliseconds);
    }
    return row;
}

Row rebuildOfDirectory(const Setting& setting) {
    Row row{.work = "search of one directory, bare names",
            .floor = "one bare FindFirstFileEx pass",
            .ratios = {},
            .goal = "linear",
            .limit = 1.25};
    double first = 0;
    for (const int size : setting.sizes) {
        const auto directory = flatDirectory(setting.directory, size);
        const Comparison compared = compareRebuild(setting, directory, size, false);
        row.ratios[size] = compared.ratio;
        if (first == 0) first = compared.ratio;
        row.judged = compared.ratio / first;
        row.note = "floor " + milliseconds(compared.floorMilliseconds);
    }
    row.note += "; last by first " + ratio(row.judged);
    return row;
}
