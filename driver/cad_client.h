#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <vector>

#include "win32/com/com_ptr.h"

namespace driver {

/// What a call by name came to.
struct CallOutcome {
    HRESULT code = S_OK;
    long number = 0;  ///< what it answered: a number or a truth
    std::string text = {};
    ComPtr<IDispatch> object = {};
};

/// One argument of such a call: a text, a number, a truth, or a number that the session writes.
class CallArgument {
 public:
    CallArgument(const std::string& text);
    CallArgument(const char* text) : CallArgument(std::string(text)) {}
    CallArgument(long number);
    CallArgument(bool truth);
    CallArgument(long* number);

    VARIANT variant{};
};

/// Calls a method of an object of the session, as any program may do beside ours.
CallOutcome CallByName(IDispatch* object, const wchar_t* name,
                       std::vector<CallArgument> arguments = {});

/// The application object that a process registered under its own number; null when it did not.
ComPtr<IDispatch> SessionOfProcess(DWORD processId);

/// What OpenDoc6 answers for a document.
struct OpenedDocument {
    ComPtr<IDispatch> document;
    long error = 0;
    long warning = 0;
};

OpenedDocument OpenDocument(IDispatch* session, const std::string& path);

}  // namespace driver
