#pragma once

#include <windows.h>

#include "session.h"

/// Creates the list view that shows the open documents, the active one marked.
HWND createDocumentList(HWND parent);

/// Refills it from the session.
void fillDocumentList(HWND list, const Session& session);

/// Sets its columns' widths for a resolution.
void sizeDocumentList(HWND list, UINT dpi);
