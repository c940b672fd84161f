#pragma once

#include <functional>
#include <map>

#include "common/runtime_error.h"
#include "ports/files.h"

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
