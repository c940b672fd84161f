#include "journal.h"

#include "text.h"

bool Journal::open(const std::wstring& path) {
    file_.reset(CreateFileW(path.c_str(), GENERIC_WRITE,
                            FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return isValid(file_);
}

void Journal::write(const std::wstring& line) {
    if (!isValid(file_)) return;
    // One write for each line, so that nobody reads half of one, and none is lost if we are killed.
    const std::string bytes = toUtf8(line) + '\n';
    DWORD written = 0;
    WriteFile(file_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}
