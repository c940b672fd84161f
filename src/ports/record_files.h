#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// A small file that grows record by record and survives a crash up to the last one flushed.
class RecordFile {
 public:
    virtual ~RecordFile() = default;

    /// All its bytes; nothing when it isn't there or can't be read.
    virtual std::optional<std::string> read() = 0;
    /// Replaces it whole, or creates it; on the disk when this returns. Raises 70, 75 or 76.
    virtual void replace(std::string_view bytes) = 0;

    enum class Flush { Now, Later };
    /// Adds bytes at the end of what was replaced last; with Now they are on the disk when this
    /// returns. Raises 53, 70 or 75, also when somebody has taken the file away.
    virtual void append(std::string_view bytes, Flush flush) = 0;

    /// Leaves nothing in it: one that was replaced is emptied, any other is removed, if it is
    /// there. False when it may still hold something.
    virtual bool clear() = 0;
    /// Removes it, if it is there. One that can't be removed is emptied or stays.
    virtual void remove() = 0;
};

class RecordFiles {
 public:
    virtual ~RecordFiles() = default;
    /// The record file at a full path, whether it is there or not.
    virtual std::unique_ptr<RecordFile> at(const std::wstring& path) = 0;
};
