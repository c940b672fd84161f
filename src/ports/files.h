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
    bool isLeftOut;  ///< it is neither searched nor shown
    bool isLink;     ///< a junction or symbolic link: it may lead back up
};

/// Identifies a directory, whatever path leads to it. Where the file system has no identities, all
/// directories of a volume have the same.
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

    /// Creates or replaces a whole file with what `write` puts into its sink; an interrupted write
    /// leaves the old one. Raises 70, 75 or 76.
    virtual void replace(const std::wstring& path, const WriteContent& write) = 0;
    /// The same with a text, written in UTF-8. Raises 5 for text that can't be encoded.
    void replaceText(const std::wstring& path, std::wstring_view text) {
        std::string utf8;
        appendUtf8(utf8, text);
        replace(path, [&](const ByteSink& file) { file(utf8); });
    }

    /// What a path leads to; Nothing, as the system's own FileExists answers, where that can't be
    /// found out.
    PathKind kindOrNothing(const std::wstring& path) {
        try {
            return kindOf(path);
        } catch (const RuntimeError&) {
            return PathKind::Nothing;
        }
    }
    bool isFile(const std::wstring& path) { return kindOf(path) == PathKind::File; }

    /// Copies a file byte for byte. A file in its place, even a read-only one, is replaced as by
    /// `replace`. Raises 53, 70, 75 or 76.
    virtual void keepCopy(const std::wstring& file, const std::wstring& copy) = 0;

    /// Deletes a file, even a read-only one. Raises 53, 70, 75 or 76.
    virtual void remove(const std::wstring& file) = 0;

    // The next four, and readBytes, may be called by several threads at once, even by threads that
    // outlive the search they work for: this object lives until the program ends.

    /// Raises 70, 75 or 76 when that can't be found out.
    virtual PathKind kindOf(const std::wstring& path) = 0;

    /// The size of a file in bytes. Raises 53, 70, 75 or 76.
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

    /// The program's current directory on a drive; the drive's root when there is none.
    virtual std::wstring currentDirectory(wchar_t drive) = 0;
};

/// A small file that grows record by record, and survives a crash up to the last record flushed.
class RecordFile {
 public:
    virtual ~RecordFile() = default;

    /// All its bytes; nothing when it isn't there or can't be read.
    virtual std::optional<std::string> read() = 0;
    /// Creates or replaces the file; it is on disk when this returns. Raises 70, 75 or 76.
    virtual void replace(std::string_view bytes) = 0;

    enum class Flush { Now, Later };
    /// Appends bytes after `replace`; with Now they are on disk when this returns. Raises 53, 70 or
    /// 75, also when somebody has removed the file.
    virtual void append(std::string_view bytes, Flush flush) = 0;

    /// Leaves nothing in the file: empties it after `replace`, otherwise removes it, if it exists.
    /// False when it may still hold something.
    virtual bool clear() = 0;
    /// Removes the file, if it exists. If that fails it is emptied, or stays.
    virtual void remove() = 0;
};

class RecordFiles {
 public:
    virtual ~RecordFiles() = default;
    /// The record file at a full path, whether it exists or not.
    virtual std::unique_ptr<RecordFile> at(const std::wstring& path) = 0;
};
