#pragma once

#include <optional>
#include <string_view>

/// The document kinds, with the type codes that callers send.
enum class DocumentKind : long { Part = 1, Assembly = 2, Drawing = 3 };

/// The kind that a file's ending stands for, without regard to case.
std::optional<DocumentKind> kindOfFile(std::wstring_view path);

/// The kind's French name.
const wchar_t* kindName(DocumentKind kind);
