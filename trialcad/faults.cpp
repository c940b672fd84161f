#include "faults.h"

#include <utility>

#include "common/text.h"

namespace {

/// Both codes in turn, since callers can meet either.
HRESULT nextCode(bool& retryLater) {
    return std::exchange(retryLater, !retryLater) ? RPC_E_SERVERCALL_RETRYLATER
                                                  : RPC_E_CALL_REJECTED;
}

}  // namespace

Faults::Faults(const Options& options) : delays_(options.delay) {
    for (const MethodRule& rule : options.busy) busy_.push_back({rule, std::nullopt});
    for (const MethodRule& rule : options.fail) failures_.push_back({rule});
}

std::optional<HRESULT> Faults::refuseCall(std::wstring_view method) {
    if (isBusy(method, true)) return nextCode(callsRetryLater_);
    return std::nullopt;
}

std::optional<HRESULT> Faults::refuseLookUp(std::wstring_view method) {
    if (isBusy(kNameLookUp, true) || isBusy(method, false)) return nextCode(lookUpsRetryLater_);
    return std::nullopt;
}

bool Faults::isBusy(std::wstring_view method, bool mayStart) {
    const ULONGLONG now = GetTickCount64();
    for (Busy& busy : busy_) {
        if (!equalIgnoringCase(busy.rule.method, method)) continue;
        if (!busy.start && mayStart) busy.start = now;
        if (busy.start && now - *busy.start < busy.rule.number) return true;
    }
    return false;
}

bool Faults::mustFail(std::wstring_view method) {
    bool fails = false;
    for (Failure& failure : failures_) {
        if (equalIgnoringCase(failure.rule.method, method) &&
            ++failure.calls == failure.rule.number) {
            fails = true;
        }
    }
    return fails;
}

DWORD Faults::delayOf(std::wstring_view method) const {
    DWORD total = 0;
    for (const MethodRule& rule : delays_) {
        if (equalIgnoringCase(rule.method, method)) total += rule.number;
    }
    return total;
}
