#include "win32/files/win_file_replacement.h"

#include <algorithm>

#include "common/numbers.h"

namespace {

std::uint32_t errorUnless(bool succeeded) { return succeeded ? 0 : GetLastError(); }

}  // namespace

bool WinReplacementSteps::isProtected(const std::wstring& path) {
    constexpr DWORD kEither = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & kEither) != 0;
}

std::wstring WinReplacementSteps::nameBeside(const std::wstring& path) {
    return path + L"." + decimal(static_cast<long>(GetCurrentProcessId())) + L"-" +
           decimal(static_cast<long>(GetTickCount64() & 0x7FFFFFFF)) + L".tmp";
}

std::uint32_t WinReplacementSteps::create(const std::wstring& path) {
    file_.reset(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr));
    return errorUnless(isValid(file_));
}

std::uint32_t WinReplacementSteps::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const DWORD wanted = static_cast<DWORD>(std::min<std::size_t>(bytes.size(), 1U << 30));
        DWORD written = 0;
        if (!WriteFile(file_.get(), bytes.data(), wanted, &written, nullptr)) return GetLastError();
        bytes.remove_prefix(written);
    }
    return 0;
}

std::uint32_t WinReplacementSteps::flush() { return errorUnless(FlushFileBuffers(file_.get())); }

std::uint32_t WinReplacementSteps::move(const std::wstring& from, const std::wstring& to) {
    constexpr DWORD kFlags = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    return errorUnless(MoveFileExW(from.c_str(), to.c_str(), kFlags));
}

std::uint32_t WinReplacementSteps::remove(const std::wstring& path) {
    return errorUnless(DeleteFileW(path.c_str()));
}

std::uint32_t WinReplacementSteps::openAlone(const std::wstring& path) {
    return errorUnless(isValid(
        UniqueHandle(CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, 0, nullptr))));
}
