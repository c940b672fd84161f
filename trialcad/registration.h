#pragma once

#include <windows.h>

#include <string>
#include <unknwn.h>

/// A session that can't be registered, with the French text that says why.
struct RegistrationError {
    std::wstring text;
};

/// Presence in the running object table for the life of this object: as SldWorks.Application, and
/// as SolidWorks_PID_<process id>, by which several sessions can be told apart.
class Registration {
 public:
    enum class Names { Both, ProcessOnly };

    /// Throws RegistrationError when Windows refuses or another session bears the name that all
    /// share.
    Registration(IUnknown& application, Names names);
    ~Registration();
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

    /// Ends the presence now, once.
    void withdraw();

 private:
    void registerClass();
    void registerProcess();

    IUnknown& application_;
    DWORD classCookie_ = 0;
    DWORD processCookie_ = 0;
    bool withdrawn_ = false;
};
