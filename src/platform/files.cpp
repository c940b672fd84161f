#include "platform/files.h"

std::wstring Files::readText(const std::wstring& path) {
    std::wstring text;
    read(path, [&](std::wstring_view piece) { text += piece; });
    return text;
}

void Files::replaceText(const std::wstring& path, std::wstring_view text) {
    replace(path, [&](const TextSink& sink) { sink(text); });
}
