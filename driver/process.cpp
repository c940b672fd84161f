#include "driver/process.h"

#include "driver/text.h"
#include "driver/wait.h"

namespace driver {
namespace {

/// Quotes an argument that contains no quotation mark.
std::wstring quoted(const std::wstring& argument) {
    std::wstring quoted = L"\"" + argument;
    if (!argument.empty() && argument.back() == L'\\') quoted += L'\\';
    return quoted + L"\"";
}

/// A handle to an emptied file for a process to inherit; null when no file is named.
HANDLE inheritableFile(const std::wstring& file) {
    SECURITY_ATTRIBUTES inheritable{sizeof inheritable, nullptr, TRUE};
    return file.empty() ? nullptr
                        : CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inheritable,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

Process::Process(const std::wstring& program, const std::vector<std::wstring>& arguments,
                 const std::wstring& directory, const std::wstring& errorFile) {
    std::wstring commandLine = quoted(program);
    for (const std::wstring& argument : arguments) commandLine += L" " + quoted(argument);
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    const HANDLE errors = inheritableFile(errorFile);
    if (errors) {
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdError = errors;
    }
    PROCESS_INFORMATION information{};
    const BOOL started =
        CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, errors != nullptr, 0,
                       nullptr, directory.c_str(), &startup, &information);
    if (errors) CloseHandle(errors);
    if (!started) {
        throw std::runtime_error("could not start " + utf8(commandLine) + ": error " +
                                 std::to_string(GetLastError()));
    }
    CloseHandle(information.hThread);
    handle_ = information.hProcess;
    id_ = information.dwProcessId;
}

Process::~Process() {
    kill();
    CloseHandle(handle_);
}

bool Process::running() const { return WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT; }

DWORD Process::waitForExit() const {
    if (WaitForSingleObject(handle_, kPatience) != WAIT_OBJECT_0) {
        throw TimedOut("process " + std::to_string(id_) + " does not end");
    }
    DWORD code = 0;
    GetExitCodeProcess(handle_, &code);
    return code;
}

void Process::kill() {
    if (!running()) return;
    TerminateProcess(handle_, 1);
    WaitForSingleObject(handle_, kPatience);
}

}  // namespace driver
