#pragma once

#include <map>
#include <mutex>
#include <set>

#include "common/runtime_error.h"
#include "ports/files.h"

/// A file system in memory: texts by path, and directories that come into being with their files.
struct FakeFiles : Files {
    std::map<std::wstring, std::wstring> texts;
    std::set<std::wstring> directories;                ///< made explicitly, empty ones for instance
    std::map<std::wstring, std::uint32_t> attributes;  ///< hidden, system
    std::map<std::wstring, std::wstring> links;        ///< directory path -> where it leads
    std::set<std::wstring> unreadable;                 ///< visiting one of these raises 70
    std::map<std::wstring, int> failing;  ///< looking for, changing: so many times it raises 75
    int wellFor = 0;                      ///< but not the first times
    std::vector<wchar_t> presentDrives = {L'c'};
    std::vector<std::wstring> driveShares;
    std::map<wchar_t, std::wstring> currentDirectories;
    std::map<std::wstring, int> visits;  ///< how often each directory was read
    std::mutex counting;                 ///< of the visits, by several threads
    /// Looks on, or is late, before a directory is visited or identified.
    std::function<void(const std::wstring&)> beforeEach = [](const std::wstring&) {};

    /// Empty documents, and their directories.
    void add(std::initializer_list<std::wstring> paths) {
        for (const std::wstring& path : paths) texts[path];
    }

    std::string readBytes(const std::wstring& path) override;
    void replace(const std::wstring& path, const WriteContent& write) override;
    PathKind kindOf(const std::wstring& path) override;
    std::uint64_t sizeOf(const std::wstring& path) override;
    void keepCopy(const std::wstring& file, const std::wstring& copy) override;
    void remove(const std::wstring& file) override;
    void visit(const std::wstring& directory,
               const std::function<void(const DirectoryEntry&)>& visitor) override;
    DirectoryId identify(const std::wstring& directory) override;
    std::vector<wchar_t> drives() override { return presentDrives; }
    std::vector<std::wstring> sharesOfDrives() override { return driveShares; }
    std::wstring currentDirectory(wchar_t drive) override;

 private:
    void attempt(const std::wstring& path);
    /// The path with links on the way replaced by where they lead, without a trailing backslash.
    std::wstring resolved(std::wstring path) const;
    /// The names right below a directory; true for those of directories.
    std::map<std::wstring, bool> below(const std::wstring& directory) const;
    bool exists(const std::wstring& directory) const;
};

/// Record files in memory, by path.
struct FakeRecordFiles : RecordFiles {
    std::map<std::wstring, std::string> contents;
    std::function<bool(int write)> fails = [](int) { return false; };
    int writes = 0;
    int flushes = 0;

    std::unique_ptr<RecordFile> at(const std::wstring& path) override {
        return std::make_unique<File>(*this, path);
    }

 private:
    struct File : RecordFile {
        File(FakeRecordFiles& all, std::wstring where) : files(all), path(std::move(where)) {}
        FakeRecordFiles& files;
        std::wstring path;
        bool open = false;

        std::optional<std::string> read() override {
            if (!files.contents.contains(path)) return std::nullopt;
            return files.contents[path];
        }
        void replace(std::string_view bytes) override {
            open = false;
            if (files.fails(files.writes++)) throw errors::fileAccess(path);
            files.contents[path] = bytes;
            ++files.flushes;
            open = true;
        }
        /// One that fails gets half-way.
        void append(std::string_view bytes, Flush flush) override {
            if (!open || !files.contents.contains(path)) throw errors::fileNotFound(path);
            const bool torn = files.fails(files.writes++);
            files.contents[path] += bytes.substr(0, torn ? bytes.size() / 2 : bytes.size());
            if (torn) throw errors::fileAccess(path);
            files.flushes += flush == Flush::Now;
        }
        bool clear() override {
            if (open && files.contents.contains(path)) {
                files.contents[path].clear();
            } else {
                files.contents.erase(path);
            }
            return true;
        }
        void remove() override { files.contents.erase(path); }
    };
};
