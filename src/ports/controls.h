#pragma once

#include <functional>
#include <span>
#include <string>

// The controls of a window, as its class sees them. What code changes through these interfaces
// never raises an event: a window that needs one calls its own handler.

/// Any control: label, button, text box, frame.
class Control {
 public:
    virtual ~Control() = default;
    virtual std::wstring text() const = 0;
    virtual void setText(const std::wstring& text) = 0;
    virtual void setEnabled(bool enabled) = 0;
    virtual void setVisible(bool visible) = 0;
    /// Draws the control at once rather than when the program is next idle.
    virtual void repaint() = 0;
};

class CheckBox : public Control {
 public:
    virtual bool checked() const = 0;
    virtual void setChecked(bool checked) = 0;
};

/// A list of lines (zero-based), each with a number that the user doesn't see, its data.
class ListBox : public Control {
 public:
    virtual int count() const = 0;
    virtual std::wstring line(int index) const = 0;
    virtual bool selected(int index) const = 0;
    virtual void select(int index, bool selected) = 0;
    virtual void clearSelection() = 0;
    virtual int data(int index) const = 0;
    virtual void setData(int index, int data) = 0;
    /// Replaces all lines; none is selected and every number is 0.
    virtual void setLines(int count, const std::function<std::wstring(int)>& line) = 0;
    /// Changes the text of a line, which stays selected or not, and in the same place on the
    /// screen.
    virtual void changeText(int index, const std::wstring& line) = 0;
    /// The same for all lines. `line` is called for each of them before the first one changes.
    virtual void changeTexts(const std::function<std::wstring(int)>& line) = 0;
    /// Between these two nothing is drawn. Use DrawingPause.
    virtual void stopDrawing() = 0;
    virtual void resumeDrawing() = 0;
};

/// While it lives a list is not drawn; afterwards it is drawn once, scroll bars included. Pauses
/// can be nested.
class DrawingPause {
 public:
    explicit DrawingPause(ListBox& list) : list_(list) { list_.stopDrawing(); }
    ~DrawingPause() { list_.resumeDrawing(); }
    DrawingPause(const DrawingPause&) = delete;
    DrawingPause& operator=(const DrawingPause&) = delete;

 private:
    ListBox& list_;
};

/// A drop-down list. Its text was typed, or is the selected line's.
class ComboBox : public Control {
 public:
    virtual void setLines(std::span<const std::wstring> lines) = 0;
    /// Zero-based, -1 for none.
    virtual int selectedLine() const = 0;
    virtual void selectLine(int index) = 0;
};

/// A row of tabs. The window shows the pages itself.
class TabStrip : public Control {
 public:
    virtual void addTab(const std::wstring& text) = 0;
    virtual int selectedTab() const = 0;  ///< zero-based
    virtual void selectTab(int index) = 0;
};

/// A bar that fills as work is done.
class ProgressBar : public Control {
 public:
    /// Steps done of all; there is at least one.
    virtual void show(int done, int total) = 0;
};
