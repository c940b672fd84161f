#include "window_title.h"

std::wstring releaseName(const std::wstring& revision) {
    const std::wstring number = revision.substr(0, revision.find_first_not_of(L"0123456789"));
    if (number == L"9") return L"SolidWorks 2001";
    if (number == L"10") return L"SolidWorks 2001Plus";
    if (number == L"11") return L"SolidWorks 2003";
    if (number == L"12") return L"SolidWorks 2004";
    return L"SolidWorks";
}

std::wstring windowTitle(TitleStyle style, const std::wstring& release,
                         const std::wstring& documentTitle) {
    if (documentTitle.empty() || style == TitleStyle::None) return release;
    if (style == TitleStyle::Bracket) return release + L" - [" + documentTitle + L"]";
    return release + L" - " + documentTitle;
}
