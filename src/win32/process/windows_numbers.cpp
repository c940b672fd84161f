// The core names Windows' numbers without its headers. Here the compiler compares the two.

#include <windows.h>

#include "input/notifications.h"
#include "rules/late_binding.h"
#include "rules/windows_files.h"

static_assert(windows_error::kFileNotFound == ERROR_FILE_NOT_FOUND);
static_assert(windows_error::kPathNotFound == ERROR_PATH_NOT_FOUND);
static_assert(windows_error::kAccessDenied == ERROR_ACCESS_DENIED);
static_assert(windows_error::kInvalidDrive == ERROR_INVALID_DRIVE);
static_assert(windows_error::kNotReady == ERROR_NOT_READY);
static_assert(windows_error::kSharingViolation == ERROR_SHARING_VIOLATION);
static_assert(windows_error::kLockViolation == ERROR_LOCK_VIOLATION);
static_assert(windows_error::kBadNetworkPath == ERROR_BAD_NETPATH);
static_assert(windows_error::kBadNetworkName == ERROR_BAD_NET_NAME);
static_assert(windows_error::kInvalidName == ERROR_INVALID_NAME);
static_assert(windows_error::kBadPathName == ERROR_BAD_PATHNAME);
static_assert(windows_error::kNameTooLong == ERROR_FILENAME_EXCED_RANGE);
static_assert(windows_error::kNotADirectory == ERROR_DIRECTORY);

static_assert(notification::kButtonClicked == BN_CLICKED);
static_assert(notification::kListSelectionChanged == LBN_SELCHANGE);
static_assert(notification::kListDoubleClicked == LBN_DBLCLK);
static_assert(notification::kComboSelectionChanged == CBN_SELCHANGE);
static_assert(notification::kComboFocusLost == CBN_KILLFOCUS);
static_assert(notification::kComboTextEdited == CBN_EDITCHANGE);
static_assert(notification::kComboListShown == CBN_DROPDOWN);
static_assert(notification::kComboListClosed == CBN_CLOSEUP);
static_assert(notification::kComboChoiceCancelled == CBN_SELENDCANCEL);

static_assert(call_result::kMemberNotFound == DISP_E_MEMBERNOTFOUND);
static_assert(call_result::kTypeMismatch == DISP_E_TYPEMISMATCH);
static_assert(call_result::kUnknownName == DISP_E_UNKNOWNNAME);
static_assert(call_result::kException == DISP_E_EXCEPTION);
static_assert(call_result::kRejected == RPC_E_CALL_REJECTED);
static_assert(call_result::kRetryLater == RPC_E_SERVERCALL_RETRYLATER);
static_assert(call_result::kInSentMessage == RPC_E_CANTCALLOUT_ININPUTSYNCCALL);
static_assert(call_result::kServerDied == RPC_E_SERVER_DIED);
static_assert(call_result::kServerDiedUnexecuted == RPC_E_SERVER_DIED_DNE);
static_assert(call_result::kDisconnected == RPC_E_DISCONNECTED);
static_assert(call_result::kNotConnected == CO_E_OBJNOTCONNECTED);
static_assert(call_result::kServerUnavailable == __HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE));
static_assert(call_result::kCallFailed == __HRESULT_FROM_WIN32(RPC_S_CALL_FAILED));
