#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "ports/files.h"

/// What the machine does for a replacement, one step at a time. Each that can fail gives Windows'
/// error number, 0 when it succeeded.
class ReplacementSteps {
 public:
    virtual ~ReplacementSteps() = default;

    /// Whether a file stands there that may not be written, or a directory.
    virtual bool isProtected(const std::wstring& path) = 0;
    /// A name beside this one that no other replacement takes.
    virtual std::wstring nameBeside(const std::wstring& path) = 0;

    /// Creates a file that stays open, for this program alone, until it is closed.
    virtual std::uint32_t create(const std::wstring& path) = 0;
    virtual std::uint32_t write(std::string_view bytes) = 0;
    virtual std::uint32_t flush() = 0;
    virtual void close() = 0;

    virtual std::uint32_t move(const std::wstring& from, const std::wstring& to) = 0;
    /// Opens a file that no other program may have open, and lets go of it.
    virtual std::uint32_t openAlone(const std::wstring& path) = 0;
    virtual std::uint32_t remove(const std::wstring& path) = 0;

    /// Lets kReplacementPause pass.
    virtual void pause() = 0;
};

inline constexpr int kReplacementPause = 50;  ///< milliseconds

/// Opens a file as soon as no other program is in the way, for two seconds at most: a scanner has
/// it open, or it is about to go (Windows then denies access until its last user lets go of it).
/// `open` and this return Windows' error number, 0 for success. `pause` lets kReplacementPause
/// pass.
std::uint32_t openPatiently(const std::function<std::uint32_t()>& open,
                            const std::function<void()>& pause);

/// Does something with a file, again and again for two seconds while another program has the file
/// open. Returns Windows' error number of the last try.
std::uint32_t withPatience(const std::wstring& path, ReplacementSteps& steps,
                           const std::function<std::uint32_t()>& deed);

/// Replaces a file whole: written beside it, flushed, then moved over it, so that at any moment
/// the path holds all of the old bytes or all of the new. Raises 70, 75 or 76, or lets through what
/// `write` throws, and then leaves the old file as it was and nothing beside it.
void replaceFile(const std::wstring& path, const WriteContent& write, ReplacementSteps& steps);
