#pragma once

#include <windows.h>

#include <string>
#include <unknwn.h>

/// Why a session can't be registered, in French.
struct RegistrationError {
    std::wstring text;
};

/// While it lives the session is in the running object table: as SldWorks.Application, and as
/// SolidWorks_PID_<process id>, by which several sessions can be distinguished.
class Registration {
 public:
    enum class Names { Both, ProcessOnly };

    /// Throws RegistrationError when Windows refuses, or another session has the name that all
    /// share.
    Registration(IUnknown& application, Names names);
    ~Registration();
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

    /// Removes it from the table now.
    void withdraw();

 private:
    void registerClass();
    void registerProcess();

    IUnknown& application_;
    DWORD classCookie_ = 0;
    DWORD processCookie_ = 0;
    bool withdrawn_ = false;
};
