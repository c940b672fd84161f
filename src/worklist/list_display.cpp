#include "worklist/list_display.h"

#include <algorithm>
#include <utility>

#include "common/encoding.h"
#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/controls.h"
#include "worklist/work_list.h"

namespace {

constexpr int kMostBackslashes = 16;

/// The place after the backslash of this zero-based rank, which must exist.
std::size_t afterBackslash(std::wstring_view path, int rank) {
    std::size_t next = 0;
    for (int i = 0; i <= rank; ++i) next = path.find(L'\\', next) + 1;
    return next;
}

}  // namespace

std::optional<std::wstring_view> labelOf(const StateCode& code) {
    switch (code.shown()) {
        case LineState::ToDo:
            return label::kToDo;
        case LineState::Done:
            return label::kDone;
        case LineState::Seen:
            return label::kSeen;
        case LineState::InProgress:
            return label::kInProgress;
        default:
            return std::nullopt;
    }
}

std::wstring upwards(int levels) {
    if (levels == 0) return {};
    std::wstring result = L"\\";
    for (int level = 0; level < levels; ++level) result += L"..\\";
    return result;
}

std::wstring shortPath(int depth, std::wstring_view path) {
    // The last character is never examined: a trailing backslash hides no level.
    const std::wstring_view examined = path.substr(0, path.empty() ? 0 : path.size() - 1);
    const auto backslashes = std::ranges::count(examined, L'\\');
    if (backslashes > kMostBackslashes) {
        throw errors::subscriptOutOfRange(L"Niveaux d'un chemin raccourci : 16 au plus.");
    }

    const int levels = std::min(static_cast<int>(backslashes) - 1, depth);
    if (levels < 1) return {};
    std::wstring result(path.substr(0, 2));
    result += upwards(levels);
    result += path.substr(afterBackslash(path, levels));
    return result;
}

void addShownPath(std::wstring& line, std::wstring_view path, int depth) {
    if (depth > 0) {
        line += shortPath(depth, path);
    } else {
        line += path;
    }
}

std::wstring displayLine(int index, std::wstring_view label, std::wstring_view path, int depth) {
    std::wstring line = decimal(index + 1);
    if (line.size() < 4) line.insert(0, 4 - line.size(), L'0');
    // Reserved at once, since allocation takes longer than copying.
    line.reserve(line.size() + 2 + label.size() + path.size());
    line += L"  ";
    line += label;
    addShownPath(line, path, depth);
    return line;
}

bool DisplayDepth::hideOneMore() { return set(levels_ + 1); }

bool DisplayDepth::hideOneLess() { return set(levels_ - 1); }

bool DisplayDepth::set(int levels) {
    constexpr int kDeepest = 9;
    if (levels < 0 || levels > kDeepest) return false;
    levels_ = levels;
    label_.setText(decimal(levels));
    return true;
}

namespace {

/// The labels of all lines in use. A line of unknown state has the label of the line above.
std::vector<std::wstring_view> labelsOf(const WorkList& list, bool allToDo) {
    std::vector<std::wstring_view> result;
    result.reserve(static_cast<std::size_t>(list.lineCount()));
    std::wstring_view shown;
    for (int i = 0; i <= list.last; ++i) {
        shown = allToDo && i != 0 ? label::kToDo : labelOf(list.lines[i].code).value_or(shown);
        result.push_back(shown);
    }
    return result;
}

}  // namespace

void WorkListView::rebuild(const WorkList& list, int depth, bool allToDo) {
    drawnLabels_ = labelsOf(list, allToDo);
    drawnDepth_ = depth;
    list_.setLines(list.lineCount(), [&](int i) {
        return displayLine(i, drawnLabels_[static_cast<std::size_t>(i)],
                           wideText(list.lines[i].path), depth);
    });
}

void WorkListView::update(const WorkList& list, int depth) {
    auto wanted = labelsOf(list, false);
    std::vector<int> changed;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (depth != drawnDepth_ || wanted[i] != drawnLabels_[i]) {
            changed.push_back(static_cast<int>(i));
        }
    }
    const auto lineText = [&](int i) {
        return displayLine(i, wanted[static_cast<std::size_t>(i)], wideText(list.lines[i].path),
                           depth);
    };
    DrawingPause pause(list_);
    changeLines(list_, changed, lineText);
    list_.clearSelection();
    drawnLabels_ = std::move(wanted);
    drawnDepth_ = depth;
}

void changeLines(ListBox& list, const std::vector<int>& lines,
                 const std::function<std::wstring(int)>& line) {
    constexpr std::size_t kMany = 100;
    if (lines.size() < kMany) {
        for (const int index : lines) list.changeText(index, line(index));
        return;
    }
    std::vector<bool> changes(static_cast<std::size_t>(list.count()));
    for (const int index : lines) changes[static_cast<std::size_t>(index)] = true;
    list.changeTexts(
        [&](int i) { return changes[static_cast<std::size_t>(i)] ? line(i) : list.line(i); });
}
