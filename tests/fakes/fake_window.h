#pragma once

#include <algorithm>
#include <map>
#include <memory>
#include <set>

#include "fakes/fake_controls.h"
#include "ports/window.h"

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
        if (!greyedItems.contains(id)) sink.raise(id, Event::Click);
    }
    void drop(std::vector<std::wstring> paths) {
        dropped = std::move(paths);
        sink.raise(kTheWindow, Event::Drop);
    }
    void close() { sink.raise(kTheWindow, Event::Close); }

 private:
    /// The one that most of it is on, or else the first.
    const FakeMonitor& monitor() const {
        const auto shared = [&](const Area& on) {
            const int across = std::min(area.right, on.right) - std::max(area.left, on.left);
            const int down = std::min(area.bottom, on.bottom) - std::max(area.top, on.top);
            return across > 0 && down > 0 ? std::int64_t{across} * down : 0;
        };
        return *std::ranges::max_element(monitors, {},
                                         [&](const auto& monitor) { return shared(monitor.area); });
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
