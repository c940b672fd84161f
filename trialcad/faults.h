#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "options.h"

/// The faults asked for by --fail, --busy and --delay. Names are matched in any case.
class Faults {
 public:
    explicit Faults(const Options& options);

    /// The code that refuses a call while its method is busy; the first call starts that time.
    std::optional<HRESULT> refuseCall(std::wstring_view method);

    /// The same for the look-up of a name, which starts that time only for --busy GetIDsOfNames.
    std::optional<HRESULT> refuseLookUp(std::wstring_view method);

    /// Counts a call that was not refused; returns whether it must fail.
    bool mustFail(std::wstring_view method);

    /// How long to hold back the answer, in milliseconds.
    DWORD delayOf(std::wstring_view method) const;

 private:
    struct Busy {
        MethodRule rule;
        std::optional<ULONGLONG> start;
    };
    struct Failure {
        MethodRule rule;
        std::uint32_t calls = 0;
    };

    bool isBusy(std::wstring_view method, bool mayStart);

    std::vector<Busy> busy_;
    std::vector<Failure> failures_;
    std::vector<MethodRule> delays_;
    bool callsRetryLater_ = false;
    bool lookUpsRetryLater_ = false;
};
