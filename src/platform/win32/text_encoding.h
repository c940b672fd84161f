#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"

/// Hands on the text of a file's bytes: UTF-8 when they are valid UTF-8 (a byte-order mark is
/// dropped), else the system's single-byte code page.
void decodeText(std::string_view bytes, const TextSink& sink);

/// Puts a piece of text into `bytes`, as UTF-8 without byte-order mark. Raises 5 for text that is
/// not valid UTF-16.
void encodeText(std::wstring_view piece, std::string& bytes);
