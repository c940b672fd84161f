#include "fakes/fake_controls.h"

int FakeListBox::count() const { return static_cast<int>(lines.size()); }

std::wstring FakeListBox::line(int index) const {
    return has(index) ? lines[static_cast<std::size_t>(index)].text : std::wstring();
}

bool FakeListBox::selected(int index) const {
    return has(index) && lines[static_cast<std::size_t>(index)].selected;
}

void FakeListBox::select(int index, bool selected) {
    if (!has(index)) return;
    if (!severalSelectable) clearSelection();
    lines[static_cast<std::size_t>(index)].selected = selected;
}

void FakeListBox::clearSelection() {
    for (Line& line : lines) line.selected = false;
}

int FakeListBox::mark(int index) const {
    return has(index) ? lines[static_cast<std::size_t>(index)].mark : -1;
}

void FakeListBox::setMark(int index, int mark) {
    if (has(index)) lines[static_cast<std::size_t>(index)].mark = mark;
}

void FakeListBox::setLines(int count, const std::function<std::wstring(int)>& line) {
    lines.clear();
    for (int i = 0; i < count; ++i) lines.push_back({line(i)});
}

void FakeListBox::replaceLine(int index, const std::wstring& line) {
    if (has(index)) lines[static_cast<std::size_t>(index)] = {line};
}

void FakeListBox::changeText(int index, const std::wstring& line) {
    if (has(index)) lines[static_cast<std::size_t>(index)].text = line;
}

std::vector<std::wstring> FakeListBox::texts() const {
    std::vector<std::wstring> result;
    for (const Line& line : lines) result.push_back(line.text);
    return result;
}

std::vector<int> FakeListBox::selection() const {
    std::vector<int> result;
    for (int i = 0; i < count(); ++i) {
        if (selected(i)) result.push_back(i);
    }
    return result;
}

void FakeComboBox::setLines(std::span<const std::wstring> texts) {
    lines.assign(texts.begin(), texts.end());
    selectLine(-1);
}

void FakeComboBox::selectLine(int index) {
    chosen = index;
    content = index < 0 ? std::wstring() : lines.at(static_cast<std::size_t>(index));
}
