#include "platform/notifications.h"

#include "common/text.h"

namespace {

constexpr struct {
    const wchar_t* name;
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
    {ControlClass::ComboBox, notification::kComboSelectionChanged, Event::Click},
    {ControlClass::ComboBox, notification::kComboTextEdited, Event::Change},
    {ControlClass::ComboBox, notification::kComboFocusLost, Event::Validate},
};

}  // namespace

ControlClass controlClass(std::wstring_view className) {
    for (const auto& known : kClasses) {
        if (equalIgnoringCase(className, known.name)) return known.kind;
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
