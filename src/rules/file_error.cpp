#include "rules/file_error.h"

RuntimeError fileError(std::uint32_t code, const std::wstring& path) {
    switch (code) {
        case windows_error::kFileNotFound:
            return errors::fileNotFound(path);
        case windows_error::kPathNotFound:
        case windows_error::kInvalidDrive:
        case windows_error::kInvalidName:
        case windows_error::kBadPathName:
        case windows_error::kBadNetworkPath:
        case windows_error::kBadNetworkName:
        case windows_error::kNotADirectory:
        case windows_error::kNotReady:
            return errors::pathNotFound(path);
        case windows_error::kSharingViolation:
        case windows_error::kLockViolation:
            return errors::permissionDenied(path);
        default:
            return errors::fileAccess(path);
    }
}

RuntimeError directoryError(std::uint32_t code, const std::wstring& path) {
    switch (code) {
        case windows_error::kFileNotFound:
            return errors::pathNotFound(path);
        case windows_error::kAccessDenied:
            return errors::permissionDenied(path);
        default: {
            RuntimeError error = fileError(code, path);
            return error.number == 75 ? errors::pathNotFound(path) : error;
        }
    }
}
