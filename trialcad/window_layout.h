#pragma once

#include <windows.h>

/// Where everything stands in the window's client area.
struct WindowLayout {
    RECT nameBar;
    RECT documentsLabel;
    RECT documents;
    RECT foldersLabel;
    RECT folders;
    RECT callsLabel;
    RECT calls;
};

WindowLayout layOutWindow(const RECT& client, UINT dpi);

/// The smallest window in which everything can still be read.
POINT smallestWindow(UINT dpi);
