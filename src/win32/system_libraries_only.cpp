#include <windows.h>

namespace {

/// From now on libraries are loaded from Windows' own directory, never from the program's, where
/// anybody may have put a file of that name (SetDefaultDllDirectories). This runs before every
/// other constructor, because the stack guard's asks Windows' cryptography for a random number,
/// which loads a library.
[[gnu::constructor(101)]] void loadFromTheSystemOnly() {
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

}  // namespace
