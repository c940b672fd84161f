#pragma once

#include <map>

#include "common/runtime_error.h"
#include "ports/record_files.h"

/// Record files in memory, by path.
struct FakeRecordFiles : RecordFiles {
    std::map<std::wstring, std::string> contents;
    int writesUntilFailure = -1;  ///< the write after so many fails, and all that follow
    int flushes = 0;

    std::unique_ptr<RecordFile> at(const std::wstring& path) override {
        return std::make_unique<File>(*this, path);
    }

 private:
    struct File : RecordFile {
        File(FakeRecordFiles& all, std::wstring where) : files(all), path(std::move(where)) {}
        FakeRecordFiles& files;
        std::wstring path;

        std::optional<std::string> read() override {
            if (!files.contents.contains(path)) return std::nullopt;
            return files.contents[path];
        }
        void replace(std::string_view bytes) override {
            requireWritable();
            files.contents[path] = bytes;
            ++files.flushes;
        }
        void append(std::string_view bytes, Flush flush) override {
            requireWritable();
            files.contents.at(path) += bytes;
            files.flushes += flush == Flush::Now;
        }
        void remove() override { files.contents.erase(path); }

        void requireWritable() {
            if (files.writesUntilFailure == 0) throw errors::fileAccess(path);
            if (files.writesUntilFailure > 0) --files.writesUntilFailure;
        }
    };
};
