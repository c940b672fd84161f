#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace driver {

/// A directory with documents and a copy of the program, beside which its list and configuration
/// files are.
class Sandbox {
 public:
    /// A temporary directory, removed at the end.
    Sandbox();
    /// A given directory, which stays.
    explicit Sandbox(std::filesystem::path directory);
    ~Sandbox();
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    const std::filesystem::path& directory() const { return directory_; }
    std::filesystem::path program() const { return directory_ / "tarnwick.exe"; }
    std::filesystem::path documents() const { return directory_ / "documents"; }
    std::filesystem::path listFile() const { return directory_ / "tarnwick.lst"; }

    /// Where this test program and the programs under test were built.
    static std::filesystem::path builtPrograms();

    /// Creates a document below documents(), with its directories; returns its full path in UTF-8.
    std::string addDocument(std::string_view relativePath) const;

    void writeList(std::string_view bytes) const;
    /// The bytes of the list file; nothing if there is none.
    std::optional<std::string> readList() const;
    /// The bytes of the configuration file; nothing if there is none.
    std::optional<std::string> readConfigurations() const;

    /// Names and sizes of all files, and the text of the list file.
    std::string describe() const;

 private:
    void copyProgram() const;

    std::filesystem::path directory_;
    bool temporary_;
};

/// A file's bytes; nothing if it can't be read.
std::optional<std::string> readFileBytes(const std::filesystem::path& file);
void writeFileBytes(const std::filesystem::path& file, std::string_view bytes);

}  // namespace driver
