#pragma once

#include <windows.h>

/// The places of everything in the window's client area.
struct SessionLayout {
    RECT nameBar;
    RECT documentsLabel;
    RECT documents;
    RECT foldersLabel;
    RECT folders;
    RECT callsLabel;
    RECT calls;
};

SessionLayout layOutSession(const RECT& client, UINT dpi);

/// The smallest window in which everything can still be read.
POINT smallestWindow(UINT dpi);
