#pragma once

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <tuple>
#include <utility>

#include "common/text.h"
#include "ports/dialogs.h"
#include "ports/list_holds.h"
#include "ports/machine.h"

/// Records every box and answers from a queue; a question without an answer fails the test.
struct FakeMessageBoxes : MessageBoxes {
    std::vector<MessageBoxContent> shown;
    std::deque<Answer> answers;
    std::function<void()> whileShown = [] {};

    Answer show(const MessageBoxContent& box) override {
        whileShown();
        shown.push_back(box);
        if (!answers.empty()) {
            const Answer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        if (box.buttons == MessageBoxContent::Buttons::Ok) return Answer::Ok;
        throw std::logic_error("a question was asked that the test did not expect");
    }

    /// The boxes shown since the last time this was asked: their texts.
    std::vector<std::wstring> takeTexts() {
        std::vector<std::wstring> texts;
        for (const auto& box : std::exchange(shown, {})) texts.push_back(box.text);
        return texts;
    }
};

/// Records what is asked, and always has the same answer.
struct FakeFileDialogs : FileDialogs {
    std::vector<SaveQuestion> asked;
    std::optional<std::wstring> answer;

    std::optional<std::wstring> askWhereToSave(const SaveQuestion& question) override {
        asked.push_back(question);
        return answer;
    }
    std::optional<std::wstring> askWhatToOpen(const OpenQuestion&) override { return answer; }
};

/// Knows windows by their titles and records what is brought forward.
struct FakeDesktop : Desktop {
    std::map<std::wstring, WindowHandle> windows;
    std::vector<WindowHandle> broughtForward;
    std::vector<WindowHandle> restored;
    std::wstring openable;
    std::map<WindowHandle, int> gdiObjectsOf;  ///< of their programs

    WindowHandle findWindow(const std::wstring& title) override {
        return windows.contains(title) ? windows[title] : 0;
    }
    WindowHandle findWindow(const std::function<bool(const std::wstring&)>& isTitle) override {
        for (const auto& [title, window] : windows) {
            if (isTitle(title)) return window;
        }
        return 0;
    }
    void restore(WindowHandle window) override { restored.push_back(window); }
    void bringToFront(WindowHandle window) override { broughtForward.push_back(window); }
    std::optional<int> gdiObjects(WindowHandle window) override {
        return gdiObjectsOf.contains(window) ? std::optional(gdiObjectsOf[window]) : std::nullopt;
    }
    bool open(const std::wstring& document) override { return document == openable; }
};

/// Settings in memory, by application, section and key, keys without regard to case.
struct FakeSettings : Settings {
    std::map<std::tuple<std::wstring, std::wstring, std::wstring>, std::wstring> entries;

    std::wstring read(const std::wstring& application, const std::wstring& section,
                      const std::wstring& key, const std::wstring& otherwise) override {
        const auto entry = entries.find({application, section, upperCase(key)});
        return entry == entries.end() ? otherwise : entry->second;
    }
    void write(const std::wstring& application, const std::wstring& section,
               const std::wstring& key, const std::wstring& value) override {
        entries[{application, section, upperCase(key)}] = value;
    }
};

/// Stands still until a test moves it.
struct FakeClock : Clock {
    std::int64_t seconds = 1'763'745'605;
    std::int64_t milliseconds = 0;
    std::int64_t now() const override { return seconds; }
    std::int64_t ticks() const override { return milliseconds; }
    LocalTime local(std::int64_t time) const override {
        // The twenty-first of November, by a clock that is an hour ahead of the others.
        const auto second = static_cast<int>((time + 3600) % 86'400);
        return {2025, 11, 21, second / 3600, second / 60 % 60, second % 60};
    }
};

/// Notes whether the machine is held awake.
struct FakePower : Power {
    bool awake = false;

    void keepAwake(bool value) override { awake = value; }
};

/// Notes which lists are asked for, by the files that tell of the holds, and answers as told.
struct FakeListHolds : ListHolds {
    HoldAnswer answer;
    std::map<std::wstring, ListHolder> others;  ///< who has which other list open
    std::optional<ListHolder> takenBy;          ///< while the hold was lost
    std::vector<std::wstring> asked;

    HoldAnswer take(const std::wstring&, const std::wstring& holdFile) override {
        asked.push_back(holdFile);
        return answer;
    }
    std::optional<ListHolder> takeAgain() override { return std::exchange(takenBy, std::nullopt); }
    std::optional<ListHolder> whileFree(const std::wstring& list, const std::wstring& holdFile,
                                        const std::function<void()>& deed) override {
        asked.push_back(holdFile);
        if (others.contains(list)) return others[list];
        deed();
        return std::nullopt;
    }
};
