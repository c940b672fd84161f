#include "sample_tree.h"

#include <windows.h>

#include <functional>
#include <stdexcept>

#include "selection/document_search.h"

namespace fs = std::filesystem;

namespace {

const wchar_t* const kKinds[] = {L".SLDPRT", L".SLDASM", L".SLDDRW"};

std::wstring padded(int number) {
    const std::wstring digits = std::to_wstring(number);
    return std::wstring(5 - std::min<std::size_t>(5, digits.size()), L'0') + digits;
}

std::wstring documentName(int number) { return L"piece " + padded(number) + kKinds[number % 3]; }

void makeFile(const fs::path& path) {
    HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) throw std::runtime_error("could not create a sample file");
    CloseHandle(file);
}

/// Makes a directory unless an earlier run has made all of it.
fs::path madeOnce(const fs::path& directory, const std::function<void()>& make) {
    const fs::path complete = directory.wstring() + L".complete";
    if (!fs::exists(complete)) {
        fs::remove_all(directory);
        fs::create_directories(directory);
        make();
        makeFile(complete);
    }
    return directory;
}

/// Directory `index` of a tree in which each directory has eight sub-directories.
fs::path treeDirectory(const fs::path& root, int index) {
    if (index == 0) return root;
    return treeDirectory(root, (index - 1) / 8) / (L"ensemble " + padded(index));
}

/// Two directories in five hold a document; each holds ten files.
void fillDirectory(const fs::path& directory, int& documentsLeft) {
    fs::create_directory(directory);
    for (int file = 0; file < 10; ++file) makeFile(directory / (L"note " + padded(file) + L".txt"));
    if (documentsLeft > 0) {
        makeFile(directory / documentName(documentsLeft));
        --documentsLeft;
    }
}

}  // namespace

fs::path documentTree(const fs::path& below, int documents) {
    const fs::path root = below / (L"arbre " + std::to_wstring(documents));
    return madeOnce(root, [&] {
        int left = documents;
        int none = 0;
        for (int i = 0; i < documents * 5 / 2; ++i) {
            fillDirectory(treeDirectory(root, i), i % 5 < 2 ? left : none);
        }
        while (left > 0) makeFile(root / documentName(left--));
    });
}

fs::path flatDirectory(const fs::path& below, int documents) {
    const fs::path root = below / (L"repertoire " + std::to_wstring(documents));
    return madeOnce(root, [&] {
        for (int i = 0; i < documents; ++i) makeFile(root / documentName(i));
    });
}

std::vector<std::wstring> samplePaths(int count) {
    std::vector<std::wstring> paths;
    paths.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        paths.push_back(L"C:\\plans\\moteur\\ensemble " + padded(i / 100) + L"\\sous-ensemble " +
                        padded(i / 10) + L"\\" + documentName(i));
    }
    return paths;
}

void fillFound(FoundDocuments& found, int count) {
    found.restart(true);
    for (const std::wstring& path : samplePaths(count)) {
        const std::size_t backslash = path.rfind(L'\\');
        found.store(path.substr(0, backslash), path.substr(backslash + 1));
    }
}
