#include "platform/win32/files/file_error.h"

RuntimeError fileError(DWORD code, const std::wstring& path) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return errors::fileNotFound(path);
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_DRIVE:
        case ERROR_INVALID_NAME:
        case ERROR_BAD_PATHNAME:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_DIRECTORY:
        case ERROR_NOT_READY:
            return errors::pathNotFound(path);
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
            return errors::permissionDenied(path);
        default:
            return errors::fileAccess(path);
    }
}

RuntimeError directoryError(DWORD code, const std::wstring& path) {
    switch (code) {
        case ERROR_FILE_NOT_FOUND:
            return errors::pathNotFound(path);
        case ERROR_ACCESS_DENIED:
            return errors::permissionDenied(path);
        default: {
            RuntimeError error = fileError(code, path);
            return error.number == 75 ? errors::pathNotFound(path) : error;
        }
    }
}
