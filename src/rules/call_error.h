#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/runtime_error.h"
#include "ports/automation.h"

namespace call_result {
inline constexpr CallResult failure(std::uint32_t code) { return static_cast<CallResult>(code); }

inline constexpr CallResult kMemberNotFound = failure(0x80020003);
inline constexpr CallResult kTypeMismatch = failure(0x80020005);
inline constexpr CallResult kUnknownName = failure(0x80020006);
inline constexpr CallResult kException = failure(0x80020009);
inline constexpr CallResult kRejected = failure(0x80010001);
inline constexpr CallResult kRetryLater = failure(0x8001010A);
inline constexpr CallResult kServerDied = failure(0x80010007);
inline constexpr CallResult kServerDiedUnexecuted = failure(0x80010012);
inline constexpr CallResult kDisconnected = failure(0x80010108);
inline constexpr CallResult kNotConnected = failure(0x800401FD);
inline constexpr CallResult kServerUnavailable = failure(0x800706BA);
inline constexpr CallResult kCallFailed = failure(0x800706BE);
inline constexpr CallResult kCallFailedUnexecuted = failure(0x800706BF);
}  // namespace call_result

/// Whether the application was too busy to take the call, which then never ran.
bool isBusy(CallResult result);

/// A late-bound call that failed.
struct CallFailure {
    CallResult result;
    std::wstring_view name;         ///< the member's, as the call spelled it
    CallResult serverCode = 0;      ///< what the server said, when the result is kException
    std::wstring description = {};  ///< in the server's own words, empty when it gave none
};

/// The run-time error for it: 13, 438 or 440, or the one that the server names by its number. The
/// session is lost when nobody answers any more, or when the user gave up waiting for a busy one.
RuntimeError callError(const CallFailure& failure);
