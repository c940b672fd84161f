#include <windows.h>

namespace {

/// What the program and the system load from now on comes from Windows' own directory, never from
/// beside the program, where anybody may have put a file of that name (SetDefaultDllDirectories).
/// Before every other constructor: that of the stack's guard asks Windows' cryptography for a
/// number, which loads its provider.
[[gnu::constructor(101)]] void loadFromTheSystemOnly() {
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

}  // namespace
