#include "selection/document_kinds.h"

#include <algorithm>

#include "common/letter_case.h"

namespace {

/// Whether a text is `capitals` in any case. For plain letters only: file names are many.
bool isInAnyCase(std::wstring_view text, std::wstring_view capitals) {
    return std::ranges::equal(text, capitals, [](wchar_t c, wchar_t capital) {
        return c == capital || c == capital + (L'a' - L'A');
    });
}

}  // namespace

DocumentKinds::DocumentKinds(std::wstring_view typeText) {
    const std::wstring text = upperCase(typeText);
    const auto take = [&](const wchar_t* kind, const wchar_t* pattern) {
        const bool named = text.find(kind) != std::wstring::npos;
        if (named) pattern_ += (pattern_.empty() ? L"" : L";") + std::wstring(pattern);
        return named;
    };
    assemblies_ = take(L"SLDASM", L"*.sldasm");
    parts_ = take(L"SLDPRT", L"*.sldprt");
    drawings_ = take(L"SLDDRW", L"*.slddrw");
}

bool DocumentKinds::accepts(std::wstring_view fileName) const {
    const std::size_t dot = fileName.find_last_of(L'.');
    if (dot == std::wstring_view::npos) return false;
    const std::wstring_view extension = fileName.substr(dot + 1);
    return (assemblies_ && isInAnyCase(extension, L"SLDASM")) ||
           (parts_ && isInAnyCase(extension, L"SLDPRT")) ||
           (drawings_ && isInAnyCase(extension, L"SLDDRW"));
}
