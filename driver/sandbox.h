#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace driver {

/// A directory with a copy of the program (its list and configuration files stand beside it) and
/// with documents.
class Sandbox {
 public:
    /// A temporary directory, removed at the end.
    Sandbox();
    /// A given directory, which stays.
    explicit Sandbox(std::filesystem::path directory);
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    const std::filesystem::path& Directory() const { return directory_; }
    std::filesystem::path Program() const { return directory_ / "tarnwick.exe"; }
    std::filesystem::path Documents() const { return directory_ / "documents"; }
    std::filesystem::path ListFile() const { return directory_ / "tarnwick.lst"; }

    /// Where this test program and the programs under test were built.
    static std::filesystem::path BuiltPrograms();

    /// Creates a document below Documents(), with its directories; gives its full path in UTF-8.
    std::string AddDocument(std::string_view relativePath) const;

    void WriteList(std::string_view bytes) const;
    /// The bytes of the list file; nothing if there is none.
    std::optional<std::string> ReadList() const;
    /// The bytes of the configuration file; nothing if there is none.
    std::optional<std::string> ReadConfigurations() const;

    /// Names and sizes of all files, and the text of the list file.
    std::string Describe() const;

 private:
    void CopyProgram() const;

    std::filesystem::path directory_;
    bool temporary_;
};

/// A file's bytes; nothing if it can't be read.
std::optional<std::string> ReadFileBytes(const std::filesystem::path& file);
void WriteFileBytes(const std::filesystem::path& file, std::string_view bytes);

}  // namespace driver
