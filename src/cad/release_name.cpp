#include "cad/release_name.h"

std::wstring releaseName(std::wstring_view revision) {
    std::wstring name;
    if (revision.starts_with(L"9")) name = L"SolidWorks 2001";
    if (revision.starts_with(L"10")) name = L"SolidWorks 2001Plus";
    if (revision.starts_with(L"11")) name = L"SolidWorks 2003";
    if (revision.starts_with(L"12")) name = L"SolidWorks 2004";
    return name;
}
