#include "about/about_window.h"

#include "about/about_tables.h"

namespace {

constexpr wchar_t kVersion[] = L"1.05";
constexpr wchar_t kVersionDate[] = L"28/03/2004";

}  // namespace

AboutWindow::AboutWindow(WindowFactory& windows)
    : ProgramWindow(windows, kAboutWindow, kAboutBindings) {
    window_->control(IDC_ABOUT_VERSION).setText(std::wstring(L"Version ") + kVersion);
    window_->control(IDC_ABOUT_DATE).setText(kVersionDate);
}

void AboutWindow::close() {
    open_ = false;
    window_->unload();
}
