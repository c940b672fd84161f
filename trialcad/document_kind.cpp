#include "document_kind.h"

#include "text.h"

namespace {

struct Kind {
    DocumentKind kind;
    const wchar_t* ending;
    const wchar_t* name;
};

constexpr Kind kKinds[] = {
    {DocumentKind::Part, L".sldprt", L"pièce"},
    {DocumentKind::Assembly, L".sldasm", L"assemblage"},
    {DocumentKind::Drawing, L".slddrw", L"mise en plan"},
};

}  // namespace

std::optional<DocumentKind> kindOfFile(std::wstring_view path) {
    const size_t dot = path.rfind(L'.');
    if (dot == path.npos) return std::nullopt;
    for (const Kind& kind : kKinds)
        if (sameText(path.substr(dot), kind.ending)) return kind.kind;
    return std::nullopt;
}

const wchar_t* kindName(DocumentKind kind) {
    for (const Kind& known : kKinds)
        if (known.kind == kind) return known.name;
    return L"";
}
