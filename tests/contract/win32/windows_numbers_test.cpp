// The core names Windows' numbers without its headers: here they are held against them.

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <utility>

#include "platform/call_error.h"
#include "platform/file_error.h"
#include "platform/notifications.h"

TEST(WindowsNumbers, AreThoseOfTheHeaders) {
    const std::pair<std::uint32_t, std::uint32_t> errors[] = {
        {windows_error::kFileNotFound, ERROR_FILE_NOT_FOUND},
        {windows_error::kPathNotFound, ERROR_PATH_NOT_FOUND},
        {windows_error::kAccessDenied, ERROR_ACCESS_DENIED},
        {windows_error::kInvalidDrive, ERROR_INVALID_DRIVE},
        {windows_error::kNotReady, ERROR_NOT_READY},
        {windows_error::kSharingViolation, ERROR_SHARING_VIOLATION},
        {windows_error::kLockViolation, ERROR_LOCK_VIOLATION},
        {windows_error::kBadNetworkPath, ERROR_BAD_NETPATH},
        {windows_error::kBadNetworkName, ERROR_BAD_NET_NAME},
        {windows_error::kInvalidName, ERROR_INVALID_NAME},
        {windows_error::kBadPathName, ERROR_BAD_PATHNAME},
        {windows_error::kNotADirectory, ERROR_DIRECTORY},
        {notification::kButtonClicked, BN_CLICKED},
        {notification::kListSelectionChanged, LBN_SELCHANGE},
        {notification::kListDoubleClicked, LBN_DBLCLK},
        {notification::kComboSelectionChanged, CBN_SELCHANGE},
        {notification::kComboFocusLost, CBN_KILLFOCUS},
        {notification::kComboTextEdited, CBN_EDITCHANGE},
        {notification::kComboListShown, CBN_DROPDOWN},
        {notification::kComboListClosed, CBN_CLOSEUP},
        {notification::kComboChoiceCancelled, CBN_SELENDCANCEL}};
    for (const auto& [ours, windows] : errors) EXPECT_EQ(ours, windows);

    const std::pair<CallResult, HRESULT> results[] = {
        {call_result::kMemberNotFound, DISP_E_MEMBERNOTFOUND},
        {call_result::kTypeMismatch, DISP_E_TYPEMISMATCH},
        {call_result::kUnknownName, DISP_E_UNKNOWNNAME},
        {call_result::kException, DISP_E_EXCEPTION},
        {call_result::kRejected, RPC_E_CALL_REJECTED},
        {call_result::kRetryLater, RPC_E_SERVERCALL_RETRYLATER},
        {call_result::kServerDied, RPC_E_SERVER_DIED},
        {call_result::kServerDiedUnexecuted, RPC_E_SERVER_DIED_DNE},
        {call_result::kDisconnected, RPC_E_DISCONNECTED},
        {call_result::kNotConnected, CO_E_OBJNOTCONNECTED},
        {call_result::kServerUnavailable, __HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE)},
        {call_result::kCallFailed, __HRESULT_FROM_WIN32(RPC_S_CALL_FAILED)}};
    for (const auto& [ours, windows] : results) EXPECT_EQ(ours, windows);

    EXPECT_EQ(controlClass(WC_TABCONTROLW), ControlClass::TabStrip);
}
