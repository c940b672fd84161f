#pragma once

#include <windows.h>

#include "common/numbers.h"
#include "common/runtime_error.h"

/// Passes on what Windows returned for something that the program can't do without. When that is
/// nothing, raises 51 with Windows' error number; `what` names the thing in French.
template <class Given>
Given require(Given given, const wchar_t* what) {
    if (given) return given;
    throw errors::system(what + (L" (erreur " + decimal(GetLastError()) + L")"));
}

/// The same for a function of COM.
inline void requireSuccess(HRESULT result, const wchar_t* what) {
    SetLastError(static_cast<DWORD>(result));
    require(SUCCEEDED(result), what);
}

/// A function that not every Windows has, or whose library isn't needed at the start. The library
/// is loaded from the system's directory, never from the program's, and stays loaded. Null where
/// the function is missing.
template <class Function>
Function* systemFunction(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC function = module ? GetProcAddress(module, name) : nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(function));
}
