#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "win32/process/handles.h"
#include "win32/window/win_controls.h"

namespace {

WPARAM position(int index) { return static_cast<WPARAM>(index); }

LPARAM asLparam(const std::wstring& text) { return reinterpret_cast<LPARAM>(text.c_str()); }

/// Finds the widest of some lines in the font of their list.
class WidestLine {
 public:
    /// `lines`: about how many will be added.
    WidestLine(HWND list, int lines);

    void add(const std::wstring& line);
    /// How far the list must scroll to show it whole: the control has a margin before each line.
    int extent() const { return widest_ == 0 ? 0 : widest_ + kMargin; }

 private:
    static constexpr int kMargin = 8;

    int widthOf(const std::wstring& line) const;

    FontContext context_;
    /// Of the first 256 characters, when there are many lines: measuring each line takes long.
    std::array<int, 256> widths_{};
    std::size_t known_ = 0;  ///< characters
    int widest_ = 0;
};

WidestLine::WidestLine(HWND list, int lines)
    : context_(list, reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0))) {
    constexpr int kMany = 50;
    if (lines < kMany) return;
    const auto last = static_cast<UINT>(widths_.size() - 1);
    if (GetCharWidth32W(context_.get(), 0, last, widths_.data())) known_ = widths_.size();
}

void WidestLine::add(const std::wstring& line) { widest_ = std::max(widest_, widthOf(line)); }

int WidestLine::widthOf(const std::wstring& line) const {
    int width = 0;
    for (const wchar_t character : line) {
        if (character >= known_) {
            SIZE size{};
            GetTextExtentPoint32W(context_.get(), line.c_str(), static_cast<int>(line.size()),
                                  &size);
            return size.cx;
        }
        width += widths_[character];
    }
    return width;
}

ScrollBars scrollBarsOf(HWND list) {
    ScrollBars bars;
    const int kinds[] = {SB_HORZ, SB_VERT};
    for (std::size_t i = 0; i < bars.size(); ++i) {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        GetScrollInfo(list, kinds[i], &info);
        bars[i] = {info.nMin, info.nMax, static_cast<int>(info.nPage), info.nPos};
    }
    return bars;
}

}  // namespace

int WinListBox::count() const { return sendForInt(LB_GETCOUNT); }

std::wstring WinListBox::line(int index) const {
    const int length = sendForInt(LB_GETTEXTLEN, position(index));
    if (length <= 0) return {};
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    send(LB_GETTEXT, position(index), reinterpret_cast<LPARAM>(text.data()));
    return text;
}

bool WinListBox::selected(int index) const { return send(LB_GETSEL, position(index)) > 0; }

bool WinListBox::severalSelectable() const {
    return (GetWindowLongW(handle(), GWL_STYLE) & (LBS_EXTENDEDSEL | LBS_MULTIPLESEL)) != 0;
}

void WinListBox::select(int index, bool selected) {
    if (severalSelectable()) {
        send(LB_SETSEL, selected, index);
    } else if (selected) {
        send(LB_SETCURSEL, position(index));
    }
}

void WinListBox::clearSelection() {
    if (severalSelectable()) {
        send(LB_SETSEL, FALSE, -1);
    } else {
        send(LB_SETCURSEL, static_cast<WPARAM>(-1));
    }
}

int WinListBox::data(int index) const { return sendForInt(LB_GETITEMDATA, position(index)); }

void WinListBox::setData(int index, int data) {
    if (data != 0) hasData_ = true;
    send(LB_SETITEMDATA, position(index), data);
}

void WinListBox::setLines(int count, const std::function<std::wstring(int)>& line) {
    DrawingPause pause(*this);
    removeAll();
    constexpr LPARAM kBytesPerLine = 200;
    send(LB_INITSTORAGE, position(count), count * kBytesPerLine);
    WidestLine widest(handle(), count);
    for (int i = 0; i < count; ++i) {
        const std::wstring text = line(i);
        widest.add(text);
        send(LB_ADDSTRING, 0, asLparam(text));
    }
    setExtent(widest.extent());
}

// The window is sent a message about each line that is removed with its data (WM_DELETEITEM), which
// takes longer than to set the data to zero.
void WinListBox::removeAll() {
    if (std::exchange(hasData_, false)) {
        for (int i = count() - 1; i >= 0; --i) setData(i, 0);
    }
    send(LB_RESETCONTENT);
}

void WinListBox::changeText(int index, const std::wstring& line) {
    const LRESULT top = send(LB_GETTOPINDEX);
    const bool wasSelected = selected(index);
    const LRESULT data = send(LB_GETITEMDATA, position(index));
    send(LB_DELETESTRING, position(index));
    send(LB_INSERTSTRING, position(index), asLparam(line));
    send(LB_SETITEMDATA, position(index), data);
    if (wasSelected && severalSelectable()) {
        send(LB_SELITEMRANGEEX, position(index), index);
    } else if (wasSelected) {
        send(LB_SETCURSEL, position(index));
    }
    if (send(LB_GETTOPINDEX) != top) send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
    WidestLine widest(handle(), 1);
    widest.add(line);
    if (widest.extent() > sendForInt(LB_GETHORIZONTALEXTENT)) setExtent(widest.extent());
}

std::vector<int> WinListBox::selection() const {
    if (!severalSelectable()) return {sendForInt(LB_GETCURSEL)};
    const int count = std::max(0, sendForInt(LB_GETSELCOUNT));
    std::vector<int> lines(static_cast<std::size_t>(count));
    send(LB_GETSELITEMS, position(count), reinterpret_cast<LPARAM>(lines.data()));
    return lines;
}

void WinListBox::changeTexts(const std::function<std::wstring(int)>& line) {
    DrawingPause pause(*this);
    const auto lines = static_cast<std::size_t>(count());
    const LRESULT top = send(LB_GETTOPINDEX);
    const LRESULT caret = send(LB_GETCARETINDEX);
    const std::vector<int> selected = selection();
    std::vector<std::pair<std::wstring, int>> changed(lines);
    for (std::size_t i = 0; i < lines; ++i) {
        const int index = static_cast<int>(i);
        changed[i] = {line(index), data(index)};
    }
    hasData_ = std::ranges::any_of(changed, [](const auto& one) { return one.second != 0; });
    setLines(count(), [&](int i) { return changed[static_cast<std::size_t>(i)].first; });
    for (std::size_t i = 0; i < lines; ++i) {
        if (changed[i].second != 0) setData(static_cast<int>(i), changed[i].second);
    }
    for (const int index : selected) select(index, true);
    constexpr LPARAM kEvenHalfSeen = TRUE;  // no scrolling to a line that is partly visible
    if (severalSelectable()) send(LB_SETCARETINDEX, static_cast<WPARAM>(caret), kEvenHalfSeen);
    send(LB_SETTOPINDEX, static_cast<WPARAM>(top));
}

void WinListBox::measureLines() {
    WidestLine widest(handle(), count());
    for (int i = 0; i < count(); ++i) widest.add(line(i));
    setExtent(widest.extent());
}

// Switching drawing on makes a window visible, so a hidden list is left alone.
void WinListBox::stopDrawing() {
    if (pauses_++ != 0) return;
    paused_ = (GetWindowLongW(handle(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (!paused_) return;
    drawnBars_ = scrollBarsOf(handle());
    send(WM_SETREDRAW, FALSE);
}

void WinListBox::resumeDrawing() {
    if (--pauses_ != 0 || !paused_) return;
    send(WM_SETREDRAW, TRUE);
    // The frame holds the scroll bars, which take longer to draw than the lines.
    const UINT frame = scrollBarsOf(handle()) == drawnBars_ ? 0 : RDW_FRAME;
    RedrawWindow(handle(), nullptr, nullptr, RDW_ERASE | RDW_INVALIDATE | RDW_ALLCHILDREN | frame);
}
