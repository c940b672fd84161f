#include "driver/sandbox.h"

#include <windows.h>

#include <fstream>
#include <stdexcept>
#include <utility>

#include "driver/text.h"

namespace driver {
namespace {

namespace fs = std::filesystem;

fs::path newTemporaryDirectory() {
    const std::string name = "tarnwick essai " + std::to_string(GetCurrentProcessId()) + "-" +
                             std::to_string(GetTickCount64());
    return fs::temp_directory_path() / name;
}

/// Removes all that can be removed, even read-only files.
void removeDirectoryTree(const fs::path& directory) {
    std::error_code ignored;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory, ignored)) {
        fs::permissions(entry.path(), fs::perms::owner_all, ignored);
    }
    fs::remove_all(directory, ignored);
}

}  // namespace

Sandbox::Sandbox() : directory_(newTemporaryDirectory()), temporary_(true) { copyProgram(); }

Sandbox::Sandbox(fs::path directory) : directory_(std::move(directory)), temporary_(false) {
    copyProgram();
}

Sandbox::~Sandbox() {
    if (temporary_) removeDirectoryTree(directory_);
}

void Sandbox::copyProgram() const {
    fs::create_directories(documents());
    const fs::path built = builtPrograms() / "tarnwick.exe";
    // mingw's std::filesystem can't overwrite an existing file.
    if (!CopyFileW(built.c_str(), program().c_str(), FALSE)) {
        throw std::runtime_error("could not copy " + utf8(built.wstring()));
    }
}

fs::path Sandbox::builtPrograms() {
    wchar_t self[MAX_PATH];
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    return fs::path(self).parent_path();
}

std::string Sandbox::addDocument(std::string_view relativePath) const {
    const fs::path document = documents() / wide(relativePath);
    fs::create_directories(document.parent_path());
    writeFileBytes(document, "sample document\r\n");
    return utf8(document.wstring());
}

void Sandbox::writeList(std::string_view bytes) const { writeFileBytes(listFile(), bytes); }

std::optional<std::string> Sandbox::readList() const { return readFileBytes(listFile()); }

std::optional<std::string> Sandbox::readConfigurations() const {
    return readFileBytes(directory_ / "tarnwick.cfg");
}

std::string Sandbox::describe() const {
    std::string text;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(directory_)) {
        if (entry.is_regular_file()) {
            text +=
                utf8(entry.path().wstring()) + " " + std::to_string(entry.file_size()) + " bytes\n";
        }
    }
    return text + "list file:\n" + readList().value_or("(none)\n");
}

std::optional<std::string> readFileBytes(const fs::path& file) {
    // A stream of the standard library would prevent others from replacing the file.
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    HANDLE handle =
        CreateFileW(file.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return std::nullopt;
    std::string bytes;
    char piece[65536];
    for (DWORD got = 0; ReadFile(handle, piece, sizeof piece, &got, nullptr) && got != 0;) {
        bytes.append(piece, got);
    }
    CloseHandle(handle);
    return bytes;
}

void writeFileBytes(const fs::path& file, std::string_view bytes) {
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush()) throw std::runtime_error("could not write " + utf8(file.wstring()));
}

}  // namespace driver
