#pragma once

#include <windows.h>

#include <memory>
#include <optional>
#include <string>

#include "ports/list_holds.h"
#include "rules/hold_protocol.h"
#include "win32/process/handles.h"

/// The file that tells other users and machines who has a list open: hidden, beside the list, held
/// open against writers. The system deletes it when its program ends, however it does; one that a
/// power cut left is nobody's, and taken over. What a link leads to is never written.
class HoldFile {
 public:
    explicit HoldFile(const std::wstring& path);

    /// Creates it and puts these names in.
    HoldFileState take(const ListHolder& us);
    /// Whether what was taken is still open, on a server as well.
    bool isOpen() const;

    /// The names in a file that another program has.
    ListHolder holder() const;

 private:
    std::wstring path_;
    UniqueHandle file_{INVALID_HANDLE_VALUE};
};

/// Which program of a session has something for itself, under a name that they agree on. The
/// hold goes with its program, however that ends: the system then abandons the mutex (Mutex
/// Objects).
class SessionHold {
 public:
    /// `name` without backslashes. Other sessions may use it, too (Kernel object namespaces).
    explicit SessionHold(const std::wstring& name);
    ~SessionHold();
    SessionHold(const SessionHold&) = delete;
    SessionHold& operator=(const SessionHold&) = delete;

    /// Whether this program has the hold now. True, too, when the objects belong to another user
    /// of the session: nothing can be learned from them.
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

/// Holds on lists: in the user's session by a mutex, between machines by a file beside the list.
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
        // Goes first: who gets the session's hold then finds no file any more.
        HoldFile file;
    };

    Files& files_;
    std::optional<Hold> hold_;
    ListHolder us_;
    HoldRenewal renewal_;
};
