#include "pickers/drive_picker.h"

#include <algorithm>
#include <string>

#include "common/letter_case.h"
#include "ports/controls.h"
#include "ports/files.h"

void DrivePicker::fill() {
    letters_ = files_.drives();
    std::vector<std::wstring> lines;
    for (const wchar_t letter : letters_) lines.push_back(std::wstring(1, letter) + L":");
    box_.setLines(lines);
}

bool DrivePicker::setDrive(std::wstring_view path) {
    const wchar_t before = drive();
    const bool named = path.size() >= 2 && path[1] == L':';
    const auto found = std::ranges::find_if(letters_, [&](wchar_t letter) {
        return named && upperCase({&letter, 1}) == upperCase(path.substr(0, 1));
    });
    box_.selectLine(found == letters_.end() ? -1 : static_cast<int>(found - letters_.begin()));
    return drive() != before;
}

wchar_t DrivePicker::drive() const {
    const int line = box_.selectedLine();
    return line < 0 || line >= static_cast<int>(letters_.size())
               ? L'\0'
               : letters_[static_cast<std::size_t>(line)];
}
