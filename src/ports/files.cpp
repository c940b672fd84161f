#include "ports/files.h"

#include "common/encoding.h"
#include "common/runtime_error.h"

std::string Files::read(const std::wstring& path) { return textInUtf8(readBytes(path)); }

std::wstring Files::readText(const std::wstring& path) { return wideText(read(path)); }

PathKind Files::kindOrNothing(const std::wstring& path) {
    try {
        return kindOf(path);
    } catch (const RuntimeError&) {
        return PathKind::Nothing;
    }
}

void Files::replaceText(const std::wstring& path, std::wstring_view text) {
    std::string utf8;
    appendUtf8(utf8, text);
    replace(path, [&](const ByteSink& file) { file(utf8); });
}
