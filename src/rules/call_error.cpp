#include "rules/call_error.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

/// Which file it was the server's own words may tell, and its caller does.
std::optional<RuntimeError> sentenceOf(std::uint32_t number) {
    switch (number) {
        case 53:
            return errors::fileNotFound({});
        case 70:
            return errors::permissionDenied({});
        case 75:
            return errors::fileAccess({});
        case 76:
            return errors::pathNotFound({});
        default:
            return std::nullopt;
    }
}

/// The run-time error that a server names by its number (the CTL_E_ codes of olectl.h).
std::optional<RuntimeError> numberedError(CallResult code, const std::wstring& description) {
    constexpr std::uint32_t kControlErrors = 0x800A0000;  // failures of FACILITY_CONTROL
    const auto bits = static_cast<std::uint32_t>(code);
    if ((bits & 0xFFFF0000) != kControlErrors) return std::nullopt;
    auto error = sentenceOf(bits & 0xFFFF);
    if (!error) return errors::automation(description);
    if (!description.empty()) error->addLine(description);
    return error;
}

/// Whether nobody is there any more who could answer.
bool isGone(CallResult result) {
    constexpr CallResult kGone[] = {call_result::kDisconnected,         call_result::kServerDied,
                                    call_result::kServerDiedUnexecuted, call_result::kNotConnected,
                                    call_result::kServerUnavailable,    call_result::kCallFailed,
                                    call_result::kCallFailedUnexecuted};
    return std::ranges::find(kGone, result) != std::end(kGone);
}

RuntimeError errorOf(const CallFailure& failure) {
    const bool serverSpoke = failure.result == call_result::kException;
    const CallResult code = serverSpoke ? failure.serverCode : failure.result;
    if (auto numbered = numberedError(code, failure.description)) return *numbered;
    if (isBusy(failure.result)) {
        return errors::automation(L"SolidWorks est occupé et n'a pas pris l'appel.");
    }
    if (isGone(failure.result)) {
        return errors::automation(
            L"La session SolidWorks ne répond plus : elle a été fermée ou s'est arrêtée.");
    }
    switch (failure.result) {
        case call_result::kUnknownName:
        case call_result::kMemberNotFound:
            return errors::unknownMember(std::wstring(failure.name));
        case call_result::kTypeMismatch:
            return errors::typeMismatch(L"un argument d'un autre type était attendu par " +
                                        std::wstring(failure.name));
        default:
            return errors::automation(failure.description);
    }
}

}  // namespace

bool isBusy(CallResult result) {
    return result == call_result::kRejected || result == call_result::kRetryLater;
}

RuntimeError callError(const CallFailure& failure) {
    RuntimeError error = errorOf(failure);
    error.sessionLost = isBusy(failure.result) || isGone(failure.result);
    return error;
}
