#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <vector>

/// A late-bound object as bare as it gets: member numbers asked for before, then Invoke alone.
class BareObject {
 public:
    /// Takes over one reference.
    explicit BareObject(IDispatch* object) : object_(object) {}
    ~BareObject() { object_->Release(); }
    BareObject(const BareObject&) = delete;
    BareObject& operator=(const BareObject&) = delete;

    DISPID numberOf(const wchar_t* name) const;
    /// Arguments in their order; they are cleared. Gives the object that the call answered, or
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
