#include "about/about_window.h"

#include "about/about_ids.h"
#include "app/module1.h"
#include "platform/platform.h"

namespace {

constexpr Binding<AboutWindow> kBindings[] = {
    {kTheWindow, Event::Close, &AboutWindow::close},
    {kEnterKey, Event::Click, &AboutWindow::close},
    {kEscapeKey, Event::Click, &AboutWindow::close},
};

}  // namespace

AboutWindow::AboutWindow(const Module1& module, Platform& platform)
    : window_(platform.windows.create({IDD_ABOUT, {}, IDC_ABOUT_PRODUCT}, *this)) {
    window_->control(IDC_ABOUT_VERSION)
        .setText(L"Version " + module.VersionMajeure + L"." + module.VersionMineure);
    window_->control(IDC_ABOUT_DATE).setText(module.DateVersion);
}

void AboutWindow::raise(int controlId, Event event) {
    dispatch<AboutWindow>(*this, kBindings, controlId, event);
}

void AboutWindow::close() {
    open_ = false;
    window_->unload();
}
