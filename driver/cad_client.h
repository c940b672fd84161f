#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>
#include <variant>
#include <vector>

#include "win32/com/com_ptr.h"

namespace driver {

/// The outcome of a call by name.
struct CallOutcome {
    HRESULT code = S_OK;
    LONG number = 0;  ///< the answer: a number or a boolean
    std::string text = {};
    ComPtr<IDispatch> object = {};
};

/// One argument of such a call; a pointer for a number that the session writes.
using CallArgument = std::variant<std::string, LONG, bool, LONG*>;

/// Calls a method of an object of the session, as a program other than ours might.
CallOutcome callByName(IDispatch* object, const wchar_t* name,
                       const std::vector<CallArgument>& arguments = {});

/// The application object that a process registered under its own number; null for none.
ComPtr<IDispatch> sessionOfProcess(DWORD processId);

/// What OpenDoc6 answers for a document.
struct OpenedDocument {
    ComPtr<IDispatch> document;
    LONG error = 0;
    LONG warning = 0;
};

OpenedDocument openDocument(IDispatch* session, const std::string& path);

}  // namespace driver
