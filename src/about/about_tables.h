#pragma once

#include "about/about_ids.h"
#include "about/about_window.h"

inline constexpr Binding<AboutWindow> kAboutBindings[] = {
    {kTheWindow, Event::Close, &AboutWindow::close},
    {kEnterKey, Event::Click, &AboutWindow::close},
    {kEscapeKey, Event::Click, &AboutWindow::close},
};

inline constexpr WindowTemplate kAboutWindow = {
    .dialogId = IDD_ABOUT,
    .headingId = IDC_ABOUT_PRODUCT,
};
