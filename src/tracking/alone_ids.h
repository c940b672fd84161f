#pragma once

// The window that shows how far the pass that goes on alone has come.
#define IDD_ALONE 160

#define IDC_ALONE_COUNT 1601
#define IDC_ALONE_DOCUMENT 1602
#define IDC_ALONE_PROGRESS 1603
#define IDC_ALONE_TIMELEFT 1604
#define IDC_ALONE_CMDARRETER 1605
