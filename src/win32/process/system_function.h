#pragma once

#include <windows.h>

/// A function that not every Windows has, or of a library that isn't needed to start: loaded from
/// the system's directory, never from beside the program, and kept. Null where it is missing.
template <class Function>
Function* systemFunction(const wchar_t* library, const char* name) {
    const HMODULE module = LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    const FARPROC function = module ? GetProcAddress(module, name) : nullptr;
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(function));
}
