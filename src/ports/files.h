#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/encoding.h"
#include "common/runtime_error.h"

/// One name in a directory, valid only while it is being visited.
struct DirectoryEntry {
    std::wstring_view name;
    bool isDirectory;
    bool isLeftOut;  ///< neither searched nor shown
    bool isLink;     ///< a junction or symbolic link: it may lead back up
};

/// What tells one directory from all others, whatever path leads to it. Where the file system does
/// not tell its directories apart, all of a volume are alike.
struct DirectoryId {
    std::uint64_t volume;
    std::array<std::uint8_t, 16> file;
    bool operator==(const DirectoryId&) const = default;
};

/// What a path leads to.
enum class PathKind { Nothing, File, Directory };

/// Takes the bytes of a file piece by piece.
using ByteSink = std::function<void(std::string_view piece)>;
using WriteContent = std::function<void(const ByteSink& file)>;

/// The file system. Paths are full paths; long ones need no prefix.
class Files {
 public:
    virtual ~Files() = default;

    /// The bytes of a file. Raises 53, 70, 75 or 76.
    virtual std::string readBytes(const std::wstring& path) = 0;
    /// The text of a file, in UTF-8, whatever it was written in (textInUtf8).
    std::string read(const std::wstring& path) { return textInUtf8(readBytes(path)); }
    std::wstring readText(const std::wstring& path) { return wideText(read(path)); }

    /// Creates or replaces a file whole with what `write` puts into its sink: an interrupted write
    /// leaves the old one. Raises 70, 75 or 76.
    virtual void replace(const std::wstring& path, const WriteContent& write) = 0;
    /// The same with a text, written in UTF-8. Raises 5 for text that can't be encoded.
    void replaceText(const std::wstring& path, std::wstring_view text) {
        std::string utf8;
        appendUtf8(utf8, text);
        replace(path, [&](const ByteSink& file) { file(utf8); });
    }

    /// What a path leads to, nothing where it can't be told, as the system's own FileExists
    /// answers.
    PathKind kindOrNothing(const std::wstring& path) {
        try {
            return kindOf(path);
        } catch (const RuntimeError&) {
            return PathKind::Nothing;
        }
    }
    bool isFile(const std::wstring& path) { return kindOf(path) == PathKind::File; }

    /// Keeps a copy of a file, byte for byte. What stood in its place, even a read-only file, is
    /// replaced as by `replace`. Raises 53, 70, 75 or 76.
    virtual void keepCopy(const std::wstring& file, const std::wstring& copy) = 0;

    /// Deletes a file, even a read-only one. Raises 53, 70, 75 or 76.
    virtual void remove(const std::wstring& file) = 0;

    // The next four, and readBytes, may be called by several threads at once, and by threads that
    // outlive their caller: the object stands until the program ends.

    /// Raises 70, 75 or 76 when it can't be told.
    virtual PathKind kindOf(const std::wstring& path) = 0;

    /// The bytes that a file has. Raises 53, 70, 75 or 76.
    virtual std::uint64_t sizeOf(const std::wstring& path) = 0;

    /// Visits every entry of a directory but "." and "..", in no order. Raises 70 or 76.
    virtual void visit(const std::wstring& directory,
                       const std::function<void(const DirectoryEntry&)>& visitor) = 0;

    /// Raises 70 or 76 when the directory can't be opened.
    virtual DirectoryId identify(const std::wstring& directory) = 0;

    /// The drives present, as lower-case letters in order.
    virtual std::vector<wchar_t> drives() = 0;

    /// The shares (\\server\share) that drives stand for.
    virtual std::vector<std::wstring> sharesOfDrives() = 0;

    /// The program's current directory on a drive, the drive's root when it has none of its own.
    virtual std::wstring currentDirectory(wchar_t drive) = 0;
};

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
