#include "driver/app_driver.h"

#include <algorithm>

#include "driver/input.h"
#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver {

void AppDriver::start(const std::vector<std::string>& arguments) {
    std::vector<std::wstring> words;
    for (const std::string& argument : arguments) words.push_back(wide(argument));
    process_ = std::make_unique<Process>(sandbox_.program(), words, sandbox_.directory());
}

HWND AppDriver::window(const std::string& caption) const {
    HWND found = nullptr;
    waitFor("the window \"" + caption + "\"", [&] {
        for (HWND window : topLevelWindows(process_->id())) {
            if (IsWindowVisible(window) && driver::textOf(window) == caption) found = window;
        }
        return found != nullptr;
    });
    return found;
}

std::vector<std::string> AppDriver::shownWindows() const {
    std::vector<std::string> captions;
    for (HWND window : topLevelWindows(process_->id())) {
        if (IsWindowVisible(window)) captions.push_back(driver::textOf(window));
    }
    return captions;
}

void AppDriver::closeByFrame(const std::string& caption) const {
    post(window(caption), WM_SYSCOMMAND, SC_CLOSE);
}

HWND AppDriver::findControl(int id) const {
    for (HWND window : topLevelWindows(process_->id())) {
        if (HWND control = descendant(window, id)) return control;
    }
    return nullptr;
}

HWND AppDriver::control(int id) const {
    HWND control = nullptr;
    waitFor("control " + std::to_string(id),
            [&] { return (control = findControl(id)) != nullptr; });
    return control;
}

void AppDriver::click(int id) const { post(control(id), BM_CLICK); }

std::string AppDriver::textOf(int id) const { return driver::textOf(control(id)); }

bool AppDriver::enabled(int id) const { return IsWindowEnabled(control(id)); }

bool AppDriver::visible(int id) const { return IsWindowVisible(control(id)); }

bool AppDriver::checked(int id) const { return send(control(id), BM_GETCHECK) == BST_CHECKED; }

std::vector<std::string> AppDriver::lines(int list) const { return listLines(control(list)); }

std::vector<int> AppDriver::selected(int list) const { return selectedLines(control(list)); }

void AppDriver::select(int list, const std::vector<int>& lines) const {
    selectLines(control(list), lines);
}

void AppDriver::type(int field, const std::string& text) const { typeInto(control(field), text); }

void AppDriver::choose(int comboBox, const std::string& line) const {
    chooseLine(control(comboBox), line);
}

void AppDriver::open(int list, const std::string& ending) const { openLine(control(list), ending); }

void AppDriver::waitForText(int id, const std::string& text) const {
    const std::string shown = eventually<std::string>(text, [&] { return textOf(id); });
    if (shown != text) {
        throw TimedOut("control " + std::to_string(id) + " shows \"" + shown + "\", not \"" + text +
                       "\"");
    }
}

HWND AppDriver::findBox() const {
    for (HWND window : topLevelWindows(process_->id())) {
        if (ModalBox::isOne(window)) return window;
    }
    return nullptr;
}

ModalBox AppDriver::box() const {
    HWND box = nullptr;
    waitFor("a message box", [&] { return (box = findBox()) != nullptr; });
    return ModalBox(box);
}

bool AppDriver::showsBox() const { return findBox() != nullptr; }

std::string AppDriver::answerBox(int button) const {
    const ModalBox shown = box();
    const std::string text = shown.text();
    shown.answer(button);
    return text;
}

void AppDriver::waitForCommandEnd(int list, int clearButton) const {
    click(clearButton);
    waitFor("the command's end", [&] { return selected(list).empty(); });
    const DWORD end = GetTickCount();
    waitFor("a later time", [&] { return GetTickCount() - end > kPollingInterval; });
}

void AppDriver::chooseInSystemMenu(const std::string& caption, int item) const {
    post(window(caption), WM_SYSCOMMAND, static_cast<WPARAM>(item));
}

void AppDriver::saveAsProposed(const std::string& title, const std::string& file) const {
    HWND dialog = window(title);
    waitFor("the proposed name " + file, [&] {
        const auto parts = descendants(dialog);
        return std::any_of(parts.begin(), parts.end(),
                           [&](HWND part) { return driver::textOf(part) == file; });
    });
    post(descendant(dialog, IDOK), BM_CLICK);
    waitFor("the dialog to close", [&] { return !IsWindow(dialog); });
}

void AppDriver::openFile(const std::string& title, const std::filesystem::path& file) const {
    HWND dialog = window(title);
    HWND name = nullptr;
    waitFor("the field for the name", [&] {
        const auto parts = descendants(dialog);
        const auto field = std::find_if(parts.begin(), parts.end(), [](HWND part) {
            return classOf(part) == "Edit" && IsWindowVisible(part);
        });
        if (field != parts.end()) name = *field;
        return name != nullptr;
    });
    send(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(file.wstring().c_str()));
    post(descendant(dialog, IDOK), BM_CLICK);
    waitFor("the dialog to close", [&] { return !IsWindow(dialog); });
}

std::string AppDriver::describe() const {
    if (!running()) return "tarnwick does not run\n";
    std::string text;
    for (HWND window : topLevelWindows(process_->id())) text += driver::describe(window);
    return text;
}

}  // namespace driver
