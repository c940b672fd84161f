#include "platform/file_system_object.h"

FileSystemObject::FileSystemObject(Automation& automation)
    : object_(automation.create(L"Scripting.FileSystemObject")) {}

bool FileSystemObject::fileExists(const std::wstring& path) {
    return isTrue(callMethod(object_, L"fileExists", {path}));
}

void FileSystemObject::deleteFile(const std::wstring& path) {
    // Not GetFile and its Delete: Wine lacks the latter.
    callMethod(object_, L"DeleteFile", {path, true});
}
