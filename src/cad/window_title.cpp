#include "cad/window_title.h"

#include "common/text.h"

bool isTitleOfAnyRelease(std::wstring_view title, std::wstring_view documentTitle) {
    constexpr std::wstring_view kName = L"SolidWorks";
    // Every title contains an empty one.
    if (documentTitle.empty()) return false;
    return equalIgnoringCase(title.substr(0, kName.size()), kName) &&
           title.find(documentTitle, kName.size()) != std::wstring_view::npos;
}
