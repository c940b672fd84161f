#pragma once

// The About window, which is also the splash.
#define IDD_ABOUT 150

#define IDC_ABOUT_PRODUCT 1501
#define IDC_ABOUT_PURPOSE 1502
#define IDC_ABOUT_VERSION 1503
#define IDC_ABOUT_DATE 1504
#define IDC_ABOUT_ICON 1505
