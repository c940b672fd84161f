#pragma once

#include <algorithm>
#include <map>
#include <set>

#include "ports/window.h"

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
        for (int i = 0; i < count(); ++i) changeText(i, line(i));
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
    void show(int, int) override {}
};

struct FakeMonitor {
    Area area;
    Area work = area;
    int dpi = 96;
};

/// A window whose controls come into being when they are first asked for.
struct FakeWindow : Window {
    enum class State { Created, Shown, Aside, Hidden, Unloaded };

    explicit FakeWindow(EventSink& events) : sink(events) {}

    EventSink& sink;
    State state = State::Created;
    Area area{0, 0, 600, 400};
    std::vector<FakeMonitor> monitors{{.area = {-90'000, -90'000, 90'000, 90'000}}};
    int progressDone = 0;
    int progressTotal = 0;
    Alert alert = Alert::None;
    std::set<int> menuMarks;
    std::set<int> greyedItems;
    bool topmost = false;
    bool hasHotKeys = false;
    std::vector<std::wstring> keysOfOthers;  ///< among the hot keys
    std::vector<std::wstring> dropped;

    FakeControl& control(int id) override { return controls_[id]; }
    FakeCheckBox& checkBox(int id) override { return checkBoxes_[id]; }
    FakeListBox& listBox(int id) override { return listBoxes_[id]; }
    FakeComboBox& comboBox(int id) override { return comboBoxes_[id]; }
    FakeTabStrip& tabStrip(int id) override { return tabStrips_[id]; }
    FakeProgressBar& progressBar(int id) override { return progressBars_[id]; }

    Area place() const override { return area; }
    /// As Windows, it takes the resolution of the monitor that most of it is on.
    void moveTo(const Area& place) override {
        const int before = dpi();
        area = place;
        const auto scale = [&](int length) { return length * dpi() / before; };
        area = areaAt(area.corner(), {scale(area.width()), scale(area.height())});
    }
    int dpi() const override { return monitor().dpi; }
    Area workArea() const override { return monitor().work; }
    void showProgress(int done, int total) override {
        progressDone = done;
        progressTotal = total;
    }
    void showAlert(Alert value) override { alert = value; }
    void setMenuItemChecked(int itemId, bool marked) override {
        marked ? void(menuMarks.insert(itemId)) : void(menuMarks.erase(itemId));
    }
    void setMenuItemEnabled(int itemId, bool enabled) override {
        enabled ? void(greyedItems.erase(itemId)) : void(greyedItems.insert(itemId));
    }
    void setTopmost(bool value) override { topmost = value; }
    std::vector<std::wstring> takeHotKeys() override {
        hasHotKeys = keysOfOthers.empty();
        return keysOfOthers;
    }
    void releaseHotKeys() override { hasHotKeys = false; }
    std::vector<std::wstring> droppedPaths() const override { return dropped; }
    void show() override { state = State::Shown; }
    void showAside() override { state = State::Aside; }
    void hide() override { state = State::Hidden; }
    void unload() override { state = State::Unloaded; }

    /// The user's own deeds.
    void leaveAt(int left, int top) { area = areaAt({left, top}, area.size()); }
    void click(int id) {
        if (!greyedItems.contains(id) && control(id).enabled) sink.raise(id, Event::Click);
    }
    void drop(std::vector<std::wstring> paths) {
        dropped = std::move(paths);
        sink.raise(kTheWindow, Event::Drop);
    }
    void close() { sink.raise(kTheWindow, Event::Close); }

 private:
    /// The one that most of it is on, or else the first.
    const FakeMonitor& monitor() const {
        return *std::ranges::max_element(monitors, {}, [&](const FakeMonitor& monitor) {
            const Area& on = monitor.area;
            const int across = std::min(area.right, on.right) - std::max(area.left, on.left);
            const int down = std::min(area.bottom, on.bottom) - std::max(area.top, on.top);
            return across > 0 && down > 0 ? std::int64_t{across} * down : 0;
        });
    }

    std::map<int, FakeControl> controls_;
    std::map<int, FakeCheckBox> checkBoxes_;
    std::map<int, FakeListBox> listBoxes_;
    std::map<int, FakeComboBox> comboBoxes_;
    std::map<int, FakeTabStrip> tabStrips_;
    std::map<int, FakeProgressBar> progressBars_;
};

/// Remembers the windows it made, the last one of each dialog. They stay valid while their form
/// lives.
struct FakeWindowFactory : WindowFactory {
    std::map<int, FakeWindow*> made;

    std::unique_ptr<Window> create(const WindowTemplate& windowTemplate,
                                   EventSink& events) override {
        auto window = std::make_unique<FakeWindow>(events);
        made[windowTemplate.dialogId] = window.get();
        return window;
    }
};
