#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"

/// What every fake control can do; what a test looks at is public.
template <class Interface>
struct FakeControlOf : Interface {
    std::wstring content;
    bool enabled = true;
    bool visible = true;
    int repaints = 0;

    std::wstring text() const override { return content; }
    void setText(const std::wstring& text) override { content = text; }
    void setEnabled(bool value) override { enabled = value; }
    void setVisible(bool value) override { visible = value; }
    void repaint() override { ++repaints; }
};

using FakeControl = FakeControlOf<Control>;

struct FakeCheckBox : FakeControlOf<CheckBox> {
    bool ticked = false;

    bool checked() const override { return ticked; }
    void setChecked(bool value) override { ticked = value; }
};

struct FakeListBox : FakeControlOf<ListBox> {
    struct Line {
        std::wstring text;
        bool selected = false;
        int mark = 0;
    };
    std::vector<Line> lines;
    bool severalSelectable = true;
    int drawingStops = 0;

    int count() const override;
    std::wstring line(int index) const override;
    bool selected(int index) const override;
    void select(int index, bool selected) override;
    void clearSelection() override;
    int mark(int index) const override;
    void setMark(int index, int mark) override;
    void setLines(int count, const std::function<std::wstring(int)>& line) override;
    void replaceLine(int index, const std::wstring& line) override;
    void changeText(int index, const std::wstring& line) override;
    void stopDrawing() override { ++drawingStops; }
    void resumeDrawing() override { --drawingStops; }

    /// The texts of all lines.
    std::vector<std::wstring> texts() const;
    /// The indices of the selected lines.
    std::vector<int> selection() const;

 private:
    bool has(int index) const { return index >= 0 && index < count(); }
};

struct FakeComboBox : FakeControlOf<ComboBox> {
    std::vector<std::wstring> lines;
    int chosen = -1;

    void setLines(std::span<const std::wstring> texts) override;
    int selectedLine() const override { return chosen; }
    void selectLine(int index) override;
};

struct FakeTabStrip : FakeControlOf<TabStrip> {
    std::vector<std::wstring> tabs;
    int tab = 0;

    void addTab(const std::wstring& text) override { tabs.push_back(text); }
    int selectedTab() const override { return tab; }
    void selectTab(int index) override { tab = index; }
};
