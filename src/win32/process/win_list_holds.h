#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "ports/list_holds.h"
#include "rules/hold_protocol.h"
#include "win32/process/handles.h"

/// The file that tells other users and machines who has a list open: hidden, beside the list, and
/// kept open so that nobody else can write to it. The system deletes it when its program ends,
/// however that happens; one left by a power cut is nobody's, and is taken over. What a link leads
/// to is never written.
class HoldFile {
 public:
    explicit HoldFile(const std::wstring& path);

    /// Creates it and writes these names into it.
    HoldFileState take(const ListHolder& us);
    /// Whether the file taken is still open, on its server, too.
    bool isOpen() const;

    /// The names in the file of another program.
    ListHolder holder() const;

 private:
    std::wstring path_;
    UniqueHandle file_{INVALID_HANDLE_VALUE};
};

/// Tells which program of a Windows session has something for itself, under a name that they agree
/// on. A hold ends with its program, however that ends: the system abandons the mutex (Mutex
/// Objects).
class SessionHold {
 public:
    /// `name` has no backslashes. Other sessions may use the same name (Kernel object namespaces).
    explicit SessionHold(const std::wstring& name);
    ~SessionHold();
    SessionHold(const SessionHold&) = delete;
    SessionHold& operator=(const SessionHold&) = delete;

    /// Takes the hold. Returns whether this program has it now, and true as well when the objects
    /// belong to another user of the session, since they tell nothing.
    bool take();

    /// The process that has the hold; 0 while it hasn't said so.
    DWORD owner() const;

 private:
    struct ViewCloser {
        void operator()(volatile LONG* view) const { UnmapViewOfFile(const_cast<LONG*>(view)); }
    };

    UniqueHandle mutex_;
    UniqueHandle section_;
    std::unique_ptr<volatile LONG, ViewCloser> owner_;  ///< shared with the other programs
    bool taken_ = false;
};

class Files;

/// Holds on lists: by a mutex within the user's Windows session, between machines by a file beside
/// the list.
class WinListHolds : public ListHolds {
 public:
    explicit WinListHolds(Files& files);
    HoldAnswer take(const std::wstring& list, const std::wstring& holdFile) override;
    std::optional<ListHolder> takeAgain() override;
    std::optional<ListHolder> whileFree(const std::wstring& list, const std::wstring& holdFile,
                                        const std::function<void()>& deed) override;

 private:
    struct Hold {
        Hold(const std::wstring& name, const std::wstring& holdFile)
            : session(name), file(holdFile) {}

        SessionHold session;
        // Destroyed first, so that whoever gets the session's hold finds no file left.
        HoldFile file;
    };

    Files& files_;
    std::optional<Hold> hold_;
    ListHolder us_;
    HoldRenewal renewal_;
};
