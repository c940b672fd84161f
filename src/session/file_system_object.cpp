#include "session/file_system_object.h"

#include "common/runtime_error.h"

FileSystemObject::FileSystemObject(Automation& automation)
    : object_(automation.create(L"Scripting.FileSystemObject")) {}

bool FileSystemObject::fileExists(const std::wstring& path) {
    try {
        return isTrue(callMethod(object_, L"fileExists", {path}));
    } catch (RuntimeError& error) {
        error.addLine(L"Fichier : " + path);
        throw;
    }
}
