#pragma once

#include <string>

/// A file's bytes as UTF-8: they are taken to be of the system's single-byte code page unless they
/// are valid UTF-8. A byte-order mark is dropped.
std::string textInUtf8(std::string bytes);
