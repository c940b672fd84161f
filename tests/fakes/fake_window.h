#pragma once

#include <map>
#include <memory>

#include "fakes/fake_controls.h"
#include "platform/window.h"

/// A window whose controls come into being when they are first asked for.
struct FakeWindow : Window {
    enum class State { Created, Shown, Hidden, Unloaded };

    FakeWindow(int dialogId, EventSink& events) : dialog(dialogId), sink(events) {}

    int dialog;
    EventSink& sink;
    State state = State::Created;
    int topTwips = 0;
    int leftTwips = 0;
    int widthTwips = 0;
    int heightTwips = 0;
    int progressDone = 0;
    int progressTotal = 0;

    FakeControl& control(int id) override { return controls_[id]; }
    FakeCheckBox& checkBox(int id) override { return checkBoxes_[id]; }
    FakeListBox& listBox(int id) override { return listBoxes_[id]; }
    FakeComboBox& comboBox(int id) override { return comboBoxes_[id]; }
    FakeTabStrip& tabStrip(int id) override { return tabStrips_[id]; }

    int top() const override { return topTwips; }
    int left() const override { return leftTwips; }
    void moveTo(int top, int left) override {
        topTwips = top;
        leftTwips = left;
    }
    void resize(int width, int height) override {
        widthTwips = width;
        heightTwips = height;
    }
    void showProgress(int done, int total) override {
        progressDone = done;
        progressTotal = total;
    }
    void show() override { state = State::Shown; }
    void hide() override { state = State::Hidden; }
    void unload() override { state = State::Unloaded; }

    /// The user's own deed.
    void click(int id) { sink.raise(id, Event::Click); }
    void close() { sink.raise(kTheWindow, Event::Close); }

 private:
    std::map<int, FakeControl> controls_;
    std::map<int, FakeCheckBox> checkBoxes_;
    std::map<int, FakeListBox> listBoxes_;
    std::map<int, FakeComboBox> comboBoxes_;
    std::map<int, FakeTabStrip> tabStrips_;
};

/// Remembers the windows it made, the last one of each dialog. They stay valid while their form
/// lives.
struct FakeWindowFactory : WindowFactory {
    std::map<int, FakeWindow*> made;

    std::unique_ptr<Window> create(const WindowTemplate& windowTemplate,
                                   EventSink& events) override {
        auto window = std::make_unique<FakeWindow>(windowTemplate.dialogId, events);
        made[windowTemplate.dialogId] = window.get();
        return window;
    }
};
