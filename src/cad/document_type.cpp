#include "cad/document_type.h"

std::optional<std::int16_t> documentType(std::wstring_view path) {
    if (path.ends_with(L"PRT")) return 1;
    if (path.ends_with(L"ASM")) return 2;
    if (path.ends_with(L"DRW")) return 3;
    return std::nullopt;
}
