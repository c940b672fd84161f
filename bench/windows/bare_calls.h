#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <vector>

/// A late-bound object reduced to Invoke: the numbers of its members are looked up beforehand.
class BareObject {
 public:
    /// Takes over one reference.
    explicit BareObject(IDispatch* object) : object_(object) {}
    ~BareObject() { object_->Release(); }
    BareObject(const BareObject&) = delete;
    BareObject& operator=(const BareObject&) = delete;

    DISPID numberOf(const wchar_t* name) const;
    /// Takes the arguments in order, and clears them. Returns the object that the call answers, or
    /// null.
    IDispatch* invoke(DISPID member, std::vector<VARIANT> arguments,
                      WORD flags = DISPATCH_METHOD) const;

 private:
    IDispatch* object_;
};

/// The running session's application object; one reference.
IDispatch* runningSession();

VARIANT text(const std::wstring& value);
VARIANT flag(bool value);
VARIANT number(LONG value);
VARIANT reference(BSTR* value);
VARIANT reference(SHORT* value);
VARIANT reference(LONG* value);
