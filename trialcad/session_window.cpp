#include "session_window.h"

#include "document_list.h"
#include "name_bar.h"
#include "program_icon.h"
#include "session_layout.h"
#include "text_list.h"

namespace {

constexpr wchar_t kClass[] = L"TarnwickTrialCad";
constexpr int kWidth = 900;
constexpr int kHeight = 640;

/// The release's commercial name, by the leading number of its revision.
std::wstring releaseName(const std::wstring& revision) {
    const std::wstring number = revision.substr(0, revision.find_first_not_of(L"0123456789"));
    if (number == L"9") return L"SolidWorks 2001";
    if (number == L"10") return L"SolidWorks 2001Plus";
    if (number == L"11") return L"SolidWorks 2003";
    if (number == L"12") return L"SolidWorks 2004";
    return L"SolidWorks";
}

std::wstring windowTitle(TitleStyle style, const std::wstring& release,
                         const DocumentObject* document) {
    if (!document || style == TitleStyle::None) return release;
    if (style == TitleStyle::Bracket) return release + L" - [" + document->title() + L"]";
    return release + L" - " + document->title();
}

void registerClass(HINSTANCE instance, WNDPROC procedure) {
    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = procedure;
    description.hInstance = instance;
    description.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(IDI_PROGRAM));
    description.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    description.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    description.lpszClassName = kClass;
    RegisterClassExW(&description);
}

int scaled(int pixels) { return MulDiv(pixels, static_cast<int>(GetDpiForSystem()), 96); }

HWND createLabel(HWND parent, const wchar_t* text) {
    return CreateWindowExW(0, L"STATIC", text, WS_CHILD | WS_VISIBLE | SS_NOPREFIX, 0, 0, 0, 0,
                           parent, nullptr, nullptr, nullptr);
}

void place(HWND control, const RECT& area) {
    SetWindowPos(control, nullptr, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

RECT clientArea(HWND window) {
    RECT area;
    GetClientRect(window, &area);
    return area;
}

}  // namespace

SessionWindow::SessionWindow(HINSTANCE instance, const Options& options, const Session& session)
    : session_(session),
      titleStyle_(options.title),
      release_(releaseName(options.revision)),
      revision_(options.revision),
      hidden_(options.hidden) {
    registerClass(instance, procedure);
    CreateWindowExW(0, kClass, release_.c_str(), WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                    CW_USEDEFAULT, CW_USEDEFAULT, scaled(kWidth), scaled(kHeight), nullptr, nullptr,
                    instance, this);
    refresh();
}

SessionWindow::~SessionWindow() {
    if (window_) DestroyWindow(window_);
}

void SessionWindow::refresh() {
    if (!window_) return;
    SetWindowTextW(window_, windowTitle(titleStyle_, release_, session_.active()).c_str());
    if (hidden_) return;
    showFacts();
    fillDocumentList(documents_, session_);
    fillTextList(folders_, session_.searchFolders(Session::kReferencedDocuments));
    showAsAsked();
}

void SessionWindow::showCall(const std::wstring& line) {
    if (window_ && !hidden_) appendLine(calls_, line);
}

LRESULT SessionWindow::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        static_cast<SessionWindow*>(creation->lpCreateParams)->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
    }
    auto* self = reinterpret_cast<SessionWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self ? self->handle(message, wParam, lParam)
                : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT SessionWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND window = window_;
    switch (message) {
        case WM_CREATE:
            createControls();
            return 0;
        case WM_SIZE:
            layOut();
            return 0;
        case WM_GETMINMAXINFO:
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = smallestWindow(dpi());
            return 0;
        case WM_DPICHANGED:
            changeResolution(*reinterpret_cast<const RECT*>(lParam));
            return 0;
        case WM_PAINT:
            paint();
            return 0;
        case WM_ENDSESSION:
            if (wParam && last_) last_();
            return 0;
        case WM_DESTROY:
            window_ = nullptr;
            SetWindowLongPtrW(window, GWLP_USERDATA, 0);
            PostQuitMessage(0);
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

void SessionWindow::createControls() {
    // Each label comes right before its list, so that screen readers take it for the list's name.
    documentsLabel_ = createLabel(window_, L"Documents ouverts :");
    documents_ = createDocumentList(window_);
    foldersLabel_ = createLabel(window_, L"Répertoires de recherche :");
    folders_ = createTextList(window_, L"Répertoires de recherche");
    callsLabel_ = createLabel(window_, L"Derniers appels reçus :");
    calls_ = createTextList(window_, L"Derniers appels reçus");
    applyFonts();
}

void SessionWindow::changeResolution(const RECT& suggested) {
    applyFonts();
    place(window_, suggested);
    layOut();
    InvalidateRect(window_, nullptr, TRUE);
}

void SessionWindow::applyFonts() {
    auto fonts = std::make_unique<WindowFonts>(static_cast<int>(dpi()), 100);
    for (const HWND control : {documentsLabel_, documents_, foldersLabel_, folders_, callsLabel_}) {
        SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(fonts->text()), TRUE);
    }
    SendMessageW(calls_, WM_SETFONT, reinterpret_cast<WPARAM>(fonts->fixedPitch()), TRUE);
    sizeDocumentList(documents_, dpi());
    fonts_ = std::move(fonts);
}

void SessionWindow::layOut() const {
    const SessionLayout layout = layOutSession(clientArea(window_), dpi());
    place(documentsLabel_, layout.documentsLabel);
    place(documents_, layout.documents);
    place(foldersLabel_, layout.foldersLabel);
    place(folders_, layout.folders);
    place(callsLabel_, layout.callsLabel);
    place(calls_, layout.calls);
    showNewestLine(calls_);
    InvalidateRect(window_, &layout.nameBar, FALSE);
}

void SessionWindow::paint() const {
    PAINTSTRUCT painting;
    const HDC context = BeginPaint(window_, &painting);
    drawNameBar(context, layOutSession(clientArea(window_), dpi()).nameBar, *fonts_, dpi(), facts_);
    EndPaint(window_, &painting);
}

void SessionWindow::showFacts() {
    facts_ =
        L"Révision " + revision_ + L" – répertoire de travail : " + session_.workingDirectory();
    if (const size_t scripted = session_.scriptedDocuments()) {
        facts_ += L" – documents joués : " + std::to_wstring(scripted);
    }
    InvalidateRect(window_, nullptr, FALSE);
}

void SessionWindow::showAsAsked() const {
    if (session_.visible() == static_cast<bool>(IsWindowVisible(window_))) return;
    ShowWindow(window_, session_.visible() ? SW_SHOW : SW_HIDE);
}
