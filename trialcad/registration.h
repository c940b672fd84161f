#pragma once

#include <windows.h>

#include <string>
#include <unknwn.h>

/// A session that can't be registered, with the French text that says why.
struct RegistrationError {
    std::wstring text;
};

/// Presence in the running object table as SldWorks.Application, for the life of this object.
class Registration {
 public:
    /// Throws RegistrationError when another session is running or Windows refuses.
    explicit Registration(IUnknown& application);
    ~Registration();
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

    /// Ends the presence now, once.
    void withdraw();

 private:
    IUnknown& application_;
    DWORD cookie_ = 0;
    bool withdrawn_ = false;
};
