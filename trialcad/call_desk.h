#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "faults.h"
#include "journal.h"
#include "members.h"

/// What a call is about: the object, its member and the name to journal.
struct Request {
    DispatchObject& object;
    const Member* member;  ///< null: the object never gave out that DISPID
    std::wstring name;
    bool put;
};

/// How a call ends for the caller.
struct Reply {
    HRESULT code;
    UINT argument = 0;
    std::wstring description = {};  ///< with DISP_E_EXCEPTION, in French
};

/// Fills the caller's exception record from a reply.
void describe(const Reply& reply, EXCEPINFO& exception);

/// Handles every call of every object: the faults asked for, the call itself, the journal.
class CallDesk {
 public:
    using Watcher = std::function<void(const std::wstring& line)>;

    CallDesk(Faults& faults, Journal& journal) : faults_(faults), journal_(journal) {}

    /// Tells the watcher each call and, in a line of its own, how it turned out.
    void watch(Watcher watcher) { watcher_ = std::move(watcher); }

    std::optional<HRESULT> refuseLookUp(std::wstring_view name) {
        return faults_.refuseLookUp(name);
    }

    Reply receive(const Request& request, Call& call);

 private:
    Reply perform(const Request& request, Call& call);
    void record(const std::wstring& line, const Reply& reply, const Call& call);

    Faults& faults_;
    Journal& journal_;
    Watcher watcher_;
};
