#include "fakes/fake_controls.h"

FakeListBox::Line FakeListBox::at(int index) const {
    return has(index) ? lines[static_cast<std::size_t>(index)] : Line{.text = L"", .mark = -1};
}

FakeListBox::Line& FakeListBox::change(int index) {
    return has(index) ? lines[static_cast<std::size_t>(index)] : nowhere_;
}

void FakeListBox::select(int index, bool selected) {
    if (has(index) && !severalSelectable) clearSelection();
    change(index).selected = selected;
}

void FakeListBox::clearSelection() {
    for (Line& line : lines) line.selected = false;
}

void FakeListBox::setLines(int count, const std::function<std::wstring(int)>& line) {
    lines.clear();
    for (int i = 0; i < count; ++i) lines.push_back({line(i)});
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
