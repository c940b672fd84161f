#pragma once

#include <string>
#include <vector>

#include "ports/controls.h"

/// What every fake control can do; what a test looks at is public.
template <class Interface>
struct FakeControlOf : Interface {
    std::wstring content;
    bool enabled = true;
    bool visible = true;

    std::wstring text() const override { return content; }
    void setText(const std::wstring& text) override { content = text; }
    void setEnabled(bool value) override { enabled = value; }
    void setVisible(bool value) override { visible = value; }
    void repaint() override {}
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
        int data = 0;
    };
    std::vector<Line> lines;
    bool severalSelectable = true;
    int drawingStops = 0;

    int count() const override { return static_cast<int>(lines.size()); }
    std::wstring line(int index) const override { return at(index).text; }
    bool selected(int index) const override { return at(index).selected; }
    void select(int index, bool selected) override {
        if (has(index) && !severalSelectable) clearSelection();
        change(index).selected = selected;
    }
    void clearSelection() override {
        for (Line& line : lines) line.selected = false;
    }
    int data(int index) const override { return at(index).data; }
    void setData(int index, int data) override { change(index).data = data; }
    void setLines(int count, const std::function<std::wstring(int)>& line) override {
        lines.clear();
        for (int i = 0; i < count; ++i) lines.push_back({line(i)});
    }
    void changeText(int index, const std::wstring& line) override { change(index).text = line; }
    void changeTexts(const std::function<std::wstring(int)>& line) override {
        std::vector<std::wstring> changed;
        for (int i = 0; i < count(); ++i) changed.push_back(line(i));
        for (int i = 0; i < count(); ++i) changeText(i, changed[static_cast<std::size_t>(i)]);
    }
    void stopDrawing() override { ++drawingStops; }
    void resumeDrawing() override { --drawingStops; }

    /// The texts of all lines.
    std::vector<std::wstring> texts() const {
        std::vector<std::wstring> result;
        for (const Line& line : lines) result.push_back(line.text);
        return result;
    }
    /// The indices of the selected lines.
    std::vector<int> selection() const {
        std::vector<int> result;
        for (int i = 0; i < count(); ++i) {
            if (selected(i)) result.push_back(i);
        }
        return result;
    }

 private:
    bool has(int index) const { return index >= 0 && index < count(); }
    /// A line; for one that is not there, what a list answers then.
    Line at(int index) const {
        return has(index) ? lines[static_cast<std::size_t>(index)] : Line{.text = L"", .data = -1};
    }
    Line& change(int index) {
        return has(index) ? lines[static_cast<std::size_t>(index)] : nowhere_;
    }

    Line nowhere_;
};

struct FakeComboBox : FakeControlOf<ComboBox> {
    std::vector<std::wstring> lines;
    int chosen = -1;

    void setLines(std::span<const std::wstring> texts) override {
        lines.assign(texts.begin(), texts.end());
        selectLine(-1);
    }
    int selectedLine() const override { return chosen; }
    void selectLine(int index) override {
        chosen = index;
        content = index < 0 ? std::wstring() : lines.at(static_cast<std::size_t>(index));
    }
};

struct FakeTabStrip : FakeControlOf<TabStrip> {
    int tab = 0;

    void addTab(const std::wstring&) override {}
    int selectedTab() const override { return tab; }
    void selectTab(int index) override { tab = index; }
};

struct FakeProgressBar : FakeControlOf<ProgressBar> {
    int done = 0;
    int total = 0;

    void show(int stepsDone, int steps) override {
        done = stepsDone;
        total = steps;
    }
};
