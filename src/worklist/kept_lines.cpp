#include "worklist/kept_lines.h"

#include <algorithm>

KeptLines::KeptLines(const WorkList& list) : codes_(codesOf(list)), lines_(codes_.size()) {
    follow(list);
}

std::vector<std::size_t> KeptLines::follow(const WorkList& list) {
    const auto reached = list.lines.reachedSince(reached_);
    reached_ = list.lines.reached();
    // A list that is as long as before has lost none of its lines.
    if (reached && list.lineCount() == lineCount_) return followSome(list, *reached);
    return followAll(list);
}

std::vector<std::size_t> KeptLines::followAll(const WorkList& list) {
    lineCount_ = list.lineCount();
    const std::vector<KeptLine> now = keptLinesOf(list, codes_);
    std::vector<std::size_t> changed;
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (take(i, now[i])) changed.push_back(i);
    }
    return changed;
}

std::vector<std::size_t> KeptLines::followSome(const WorkList& list, std::span<const int> lines) {
    std::vector<std::size_t> changed;
    for (const int i : lines) {
        if (i > list.last) continue;
        const WorkLine& line = list.lines[i];
        const auto at = static_cast<std::size_t>(line.fileLine);
        if (at < codes_.size() && take(at, keptLineOf(line, codes_[at]))) changed.push_back(at);
    }
    std::ranges::sort(changed);
    return changed;
}

bool KeptLines::take(std::size_t fileLine, const KeptLine& now) {
    constexpr auto isOther = [](const KeptLine& line) {
        return line.state != KeptLine::State::AsInFile;
    };
    KeptLine& line = lines_[fileLine];
    if (line == now) return false;
    otherwise_ += isOther(now) - isOther(line);
    line = now;
    return true;
}

std::vector<std::size_t> KeptLines::toTell() const {
    std::vector<std::size_t> lines;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (lines_[i] != KeptLine()) lines.push_back(i);
    }
    return lines;
}
