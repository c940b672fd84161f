#pragma once

#include <windows.h>

#include <array>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "input/notifications.h"
#include "ports/controls.h"

/// What every control can do, for each of the control interfaces.
template <class Interface>
class ControlOf : public Interface {
 public:
    explicit ControlOf(HWND control) : control_(control) {}

    std::wstring text() const override {
        std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control_)), L'\0');
        const int length = GetWindowTextW(control_, text.data(), static_cast<int>(text.size()) + 1);
        text.resize(static_cast<std::size_t>(length));
        return text;
    }
    void setText(const std::wstring& text) override {
        if (this->text() != text) SetWindowTextW(control_, text.c_str());
    }
    void setEnabled(bool enabled) override { EnableWindow(control_, enabled); }
    void setVisible(bool visible) override { ShowWindow(control_, visible ? SW_SHOWNA : SW_HIDE); }
    void repaint() override {
        RedrawWindow(control_, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    }

 protected:
    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageW(control_, message, wParam, lParam);
    }
    int sendForInt(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return static_cast<int>(send(message, wParam, lParam));
    }
    HWND handle() const { return control_; }

 private:
    HWND control_;
};

using WinControl = ControlOf<Control>;

/// A label that screen readers read out when it changes.
class WinLiveLabel : public WinControl {
 public:
    using WinControl::WinControl;
    void setText(const std::wstring& text) override;
};

class WinCheckBox : public ControlOf<CheckBox> {
 public:
    using ControlOf::ControlOf;
    bool checked() const override;
    void setChecked(bool checked) override;
};

/// What the two scroll bars show: least, most, page and place of each.
using ScrollBars = std::array<std::array<int, 4>, 2>;

class WinListBox : public ControlOf<ListBox> {
 public:
    using ControlOf::ControlOf;

    int count() const override;
    std::wstring line(int index) const override;
    bool selected(int index) const override;
    void select(int index, bool selected) override;
    void clearSelection() override;
    int data(int index) const override;
    void setData(int index, int data) override;
    void setLines(int count, const std::function<std::wstring(int)>& line) override;
    void changeText(int index, const std::wstring& line) override;
    void changeTexts(const std::function<std::wstring(int)>& line) override;
    void stopDrawing() override;
    void resumeDrawing() override;

    /// Whether more than one line can be selected.
    bool severalSelectable() const;
    /// Measures the lines again after a change of font: the list scrolls sideways as far as its
    /// widest line reaches.
    void measureLines();

 private:
    void removeAll();
    std::vector<int> selection() const;
    void setExtent(int pixels) { send(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(pixels)); }

    bool hasData_ = false;  ///< some line's data isn't zero
    int pauses_ = 0;
    bool paused_ = false;  ///< whether the control itself was told
    ScrollBars drawnBars_{};
};

class WinComboBox : public ControlOf<ComboBox> {
 public:
    using ControlOf::ControlOf;
    void setLines(std::span<const std::wstring> lines) override;
    int selectedLine() const override;
    void selectLine(int index) override;
};

class WinTabStrip : public ControlOf<TabStrip> {
 public:
    using ControlOf::ControlOf;
    void addTab(const std::wstring& text) override;
    int selectedTab() const override;
    void selectTab(int index) override;
};

class WinProgressBar : public ControlOf<ProgressBar> {
 public:
    using ControlOf::ControlOf;
    void show(int done, int total) override;
};

/// Restores the field of a combo box after it was resized: Windows completes what is typed in it to
/// a line that begins so, and selects that. Any other control is left alone.
class KeptComboField {
 public:
    explicit KeptComboField(HWND control);
    ~KeptComboField();
    KeptComboField(const KeptComboField&) = delete;
    KeptComboField& operator=(const KeptComboField&) = delete;

 private:
    HWND box_ = nullptr;  ///< null when there is nothing to keep
    LRESULT line_ = 0;
    std::wstring text_;
    DWORD start_ = 0;
    DWORD end_ = 0;
};

/// Follows the notifications of a window's drop-down lists.
class ComboLists {
 public:
    /// What a notification of a combo box amounts to. Remembering a choice and going back to it is
    /// done here.
    DropDown::Step notified(HWND comboBox, WORD code);

 private:
    struct Choice {
        DropDown list;
        int line = -1;
        std::wstring text = {};
    };

    std::map<HWND, Choice> choices_;
};

/// Shows the chosen line in the field now: the box itself does so only after its notification.
void showChosenLine(HWND comboBox);
