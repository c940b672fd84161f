#pragma once

#include <string>

/// A file's bytes as UTF-8, always well formed. A file that begins with a byte-order mark of UTF-8
/// or UTF-16 is read as that says, U+FFFD standing for what is no character. In any other, a line
/// of valid UTF-8 is taken as it is and every other line to be of the system's single-byte code
/// page: an odd byte spoils its own line and none else. The mark is dropped.
std::string textInUtf8(std::string bytes);
