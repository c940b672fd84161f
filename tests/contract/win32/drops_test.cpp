// Files and directories that are dropped on a window.

#include <shlobj.h>

#include "contract/win32/real_windows.h"

/// What the Explorer hands over: paths of any length, each with a zero behind it, and one more.
static HDROP handOver(const std::vector<std::wstring>& paths) {
    std::wstring names;
    for (const std::wstring& path : paths) names += path + L'\0';
    const DROPFILES header{.pFiles = sizeof header, .pt = {}, .fNC = FALSE, .fWide = TRUE};
    HGLOBAL memory = GlobalAlloc(GHND, sizeof header + (names.size() + 1) * sizeof(wchar_t));
    auto* bytes = static_cast<char*>(GlobalLock(memory));
    CopyMemory(bytes, &header, sizeof header);
    CopyMemory(bytes + sizeof header, names.data(), names.size() * sizeof(wchar_t));
    GlobalUnlock(memory);
    return static_cast<HDROP>(memory);
}

struct Drops : RealWindowTest {
    void drop() {
        SendMessageW(dialog(), WM_DROPFILES, reinterpret_cast<WPARAM>(handOver(paths)), 0);
    }

    const std::vector<std::wstring> paths = {L"c:\\plans\\été.SLDPRT",
                                             L"c:\\" + std::wstring(400, L'x')};
    std::unique_ptr<Window> window =
        factory.create({.dialogId = IDD_CONTRACT, .takesDrops = true}, *this);
};

TEST_F(Drops, RaiseAnEventWithTheFullPathsUnlessACommandIsAtWorkOrABoxWaits) {
    window->show();
    gate.run([&] { drop(); });
    EnableWindow(dialog(), FALSE);
    drop();
    EnableWindow(dialog(), TRUE);
    EXPECT_TRUE(raised.empty());
    EXPECT_NE(GetWindowLongW(dialog(), GWL_EXSTYLE) & WS_EX_ACCEPTFILES, 0);
    drop();
    EXPECT_EQ(raised, (RaisedEvents{{kTheWindow, Event::Drop}}));
    EXPECT_EQ(window->droppedPaths(), paths);
}
