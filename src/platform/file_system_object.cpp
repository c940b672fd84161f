#include "platform/file_system_object.h"

FileSystemObject::FileSystemObject(Automation& automation)
    : object_(automation.create(L"Scripting.FileSystemObject")) {}

bool FileSystemObject::fileExists(const std::wstring& path) {
    return isTrue(callMethod(object_, L"fileExists", {path}));
}
