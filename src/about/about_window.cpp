#include "about/about_window.h"

#include <string>

#include "about/about_tables.h"
#include "common/version.h"

AboutWindow::AboutWindow(WindowFactory& windows)
    : ProgramWindow(windows, kAboutWindow, kAboutBindings) {
    window_->control(IDC_ABOUT_VERSION)
        .setText(std::wstring(L"Version ") + kVersionMajor + L'.' + kVersionMinor);
    window_->control(IDC_ABOUT_DATE).setText(kVersionDate);
}

void AboutWindow::close() {
    open_ = false;
    window_->unload();
}
