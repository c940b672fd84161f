#include "driver/app_driver.h"

#include <algorithm>

#include "driver/input.h"
#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {

void AppDriver::Start(const std::vector<std::string>& arguments) {
    std::vector<std::wstring> wide;
    for (const std::string& argument : arguments) wide.push_back(Wide(argument));
    process_ = std::make_unique<Process>(sandbox_.Program(), wide, sandbox_.Directory());
}

HWND AppDriver::Window(const std::string& caption) const {
    HWND found = nullptr;
    WaitFor("the window \"" + caption + "\"", [&] {
        for (HWND window : TopLevelWindows(process_->Id()))
            if (IsWindowVisible(window) && driver::TextOf(window) == caption) found = window;
        return found != nullptr;
    });
    return found;
}

std::vector<std::string> AppDriver::ShownWindows() const {
    std::vector<std::string> captions;
    for (HWND window : TopLevelWindows(process_->Id()))
        if (IsWindowVisible(window)) captions.push_back(driver::TextOf(window));
    return captions;
}

void AppDriver::CloseByFrame(const std::string& caption) const {
    Post(Window(caption), WM_SYSCOMMAND, SC_CLOSE);
}

HWND AppDriver::FindControl(int id) const {
    for (HWND window : TopLevelWindows(process_->Id()))
        if (HWND control = Descendant(window, id)) return control;
    return nullptr;
}

HWND AppDriver::Control(int id) const {
    HWND control = nullptr;
    WaitFor("control " + std::to_string(id),
            [&] { return (control = FindControl(id)) != nullptr; });
    return control;
}

void AppDriver::Click(int id) const { Post(Control(id), BM_CLICK); }

std::string AppDriver::TextOf(int id) const { return driver::TextOf(Control(id)); }

bool AppDriver::Enabled(int id) const { return IsWindowEnabled(Control(id)); }

bool AppDriver::Visible(int id) const { return IsWindowVisible(Control(id)); }

bool AppDriver::Checked(int id) const { return Send(Control(id), BM_GETCHECK) == BST_CHECKED; }

std::vector<std::string> AppDriver::Lines(int list) const { return ListLines(Control(list)); }

std::vector<int> AppDriver::Selected(int list) const { return SelectedLines(Control(list)); }

void AppDriver::Select(int list, const std::vector<int>& lines) const {
    SelectLines(Control(list), lines);
}

void AppDriver::Type(int field, const std::string& text) const { TypeInto(Control(field), text); }

void AppDriver::Choose(int comboBox, const std::string& line) const {
    ChooseLine(Control(comboBox), line);
}

void AppDriver::Open(int list, const std::string& ending) const { OpenLine(Control(list), ending); }

void AppDriver::WaitForText(int id, const std::string& text) const {
    const std::string shown = Eventually<std::string>(text, [&] { return TextOf(id); });
    if (shown != text)
        throw TimedOut("control " + std::to_string(id) + " shows \"" + shown + "\", not \"" + text +
                       "\"");
}

HWND AppDriver::FindBox() const {
    for (HWND window : TopLevelWindows(process_->Id()))
        if (ModalBox::Is(window)) return window;
    return nullptr;
}

ModalBox AppDriver::Box() const {
    HWND box = nullptr;
    WaitFor("a message box", [&] { return (box = FindBox()) != nullptr; });
    return ModalBox(box);
}

bool AppDriver::ShowsBox() const { return FindBox() != nullptr; }

void AppDriver::WaitForCommandEnd(int list, int clearButton) const {
    Click(clearButton);
    WaitFor("the command's end", [&] { return Selected(list).empty(); });
    const DWORD end = GetTickCount();
    WaitFor("a later time", [&] { return GetTickCount() - end > kPollingInterval; });
}

void AppDriver::ChooseInSystemMenu(const std::string& caption, int item) const {
    Post(Window(caption), WM_SYSCOMMAND, static_cast<WPARAM>(item));
}

void AppDriver::SaveAsProposed(const std::string& title, const std::string& file) const {
    HWND dialog = Window(title);
    WaitFor("the proposed name " + file, [&] {
        const auto parts = Descendants(dialog);
        return std::any_of(parts.begin(), parts.end(),
                           [&](HWND part) { return driver::TextOf(part) == file; });
    });
    Post(Descendant(dialog, IDOK), BM_CLICK);
    WaitFor("the dialog to close", [&] { return !IsWindow(dialog); });
}

std::string AppDriver::Describe() const {
    if (!Running()) return "tarnwick does not run\n";
    std::string text;
    for (HWND window : TopLevelWindows(process_->Id())) text += driver::Describe(window);
    return text;
}

}  // namespace driver
