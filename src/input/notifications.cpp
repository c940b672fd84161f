#include "input/notifications.h"

#include <algorithm>

namespace {

constexpr struct {
    std::wstring_view name;
    ControlClass kind;
} kClasses[] = {{L"Button", ControlClass::Button},
                {L"ListBox", ControlClass::ListBox},
                {L"ComboBox", ControlClass::ComboBox},
                {L"Edit", ControlClass::Edit},
                {L"SysTabControl32", ControlClass::TabStrip}};

constexpr struct {
    ControlClass control;
    unsigned code;
    Event event;
} kEvents[] = {
    {ControlClass::Button, notification::kButtonClicked, Event::Click},
    {ControlClass::ListBox, notification::kListSelectionChanged, Event::Click},
    {ControlClass::ListBox, notification::kListDoubleClicked, Event::DoubleClick},
    {ControlClass::ComboBox, notification::kComboTextEdited, Event::Change},
    {ControlClass::ComboBox, notification::kComboFocusLost, Event::Validate},
};

/// The names of Windows' own classes have plain letters only.
bool isNamed(std::wstring_view className, std::wstring_view name) {
    const auto lower = [](wchar_t c) { return c >= L'A' && c <= L'Z' ? c - L'A' + L'a' : c; };
    return std::ranges::equal(className, name, {}, lower, lower);
}

}  // namespace

ControlClass controlClass(std::wstring_view className) {
    for (const auto& known : kClasses) {
        if (isNamed(className, known.name)) return known.kind;
    }
    return ControlClass::Other;
}

std::optional<Event> eventOf(ControlClass control, unsigned code, bool focusStaysInWindow) {
    for (const auto& known : kEvents) {
        if (known.control != control || known.code != code) continue;
        if (known.event == Event::Validate && !focusStaysInWindow) return std::nullopt;
        return known.event;
    }
    return std::nullopt;
}

DropDown::Step DropDown::notified(unsigned code, bool isDown) {
    switch (code) {
        case notification::kComboListShown:
            changed_ = cancelled_ = false;
            return Step::Remember;
        case notification::kComboSelectionChanged:
            return selectionChanged(isDown);
        case notification::kComboTextEdited:
            // The window knows already, and Escape doesn't undo it.
            changed_ = false;
            return isDown ? Step::Remember : Step::Nothing;
        case notification::kComboChoiceCancelled:
            cancelled_ = true;
            return Step::Nothing;
        case notification::kComboListClosed:
            return closedUp();
        default:
            return Step::Nothing;
    }
}

DropDown::Step DropDown::selectionChanged(bool isDown) {
    changed_ = isDown;
    return isDown ? Step::Nothing : Step::Act;
}

DropDown::Step DropDown::closedUp() const {
    if (!changed_) return Step::Nothing;
    return cancelled_ ? Step::GoBack : Step::ActLater;
}
