#include "cad/cad_names.h"

#include "common/text.h"

std::optional<std::int16_t> documentType(std::wstring_view path) {
    if (path.ends_with(L"PRT")) return 1;
    if (path.ends_with(L"ASM")) return 2;
    if (path.ends_with(L"DRW")) return 3;
    return std::nullopt;
}

std::wstring releaseName(std::wstring_view revision) {
    std::wstring name;
    if (revision.starts_with(L"9")) name = L"SolidWorks 2001";
    if (revision.starts_with(L"10")) name = L"SolidWorks 2001Plus";
    if (revision.starts_with(L"11")) name = L"SolidWorks 2003";
    if (revision.starts_with(L"12")) name = L"SolidWorks 2004";
    return name;
}

bool isTitleOfAnyRelease(std::wstring_view title, std::wstring_view documentTitle) {
    constexpr std::wstring_view kName = L"SolidWorks";
    // Every title would contain an empty one.
    if (documentTitle.empty()) return false;
    return equalIgnoringCase(title.substr(0, kName.size()), kName) &&
           title.find(documentTitle, kName.size()) != std::wstring_view::npos;
}
