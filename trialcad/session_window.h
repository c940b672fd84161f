#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "options.h"
#include "session.h"
#include "win32/window/window_look.h"

/// The session's main window: a title like the release's, the open documents, the last calls.
class SessionWindow {
 public:
    /// Creates the window without showing it. With --hidden it is never shown, but takes WM_CLOSE.
    SessionWindow(HINSTANCE instance, const Options& options, const Session& session);
    ~SessionWindow();
    SessionWindow(const SessionWindow&) = delete;
    SessionWindow& operator=(const SessionWindow&) = delete;

    HWND handle() const { return window_; }

    /// `last` is called when the user's Windows session ends, after which the process may be ended.
    void atEndOfWindowsSession(std::function<void()> last) { last_ = std::move(last); }

    /// Updates title and lists from the session.
    void refresh();

    /// Adds a call to the list of the last calls.
    void showCall(const std::wstring& line);

 private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void createControls();
    void changeResolution(const RECT& suggested);
    void applyFonts();
    void layOut() const;
    void paint() const;
    void showFacts();
    void showAsAsked() const;
    UINT dpi() const { return GetDpiForWindow(window_); }

    const Session& session_;
    const TitleStyle titleStyle_;
    const std::wstring release_;
    const std::wstring revision_;
    std::wstring facts_;
    const bool hidden_;
    std::function<void()> last_;
    std::unique_ptr<WindowFonts> fonts_;
    HWND window_ = nullptr;
    HWND documentsLabel_ = nullptr;
    HWND documents_ = nullptr;
    HWND foldersLabel_ = nullptr;
    HWND folders_ = nullptr;
    HWND callsLabel_ = nullptr;
    HWND calls_ = nullptr;
};
