#include "worklist/kept_state.h"

#include "worklist/line_commands.h"

namespace {

using State = KeptLine::State;

std::string_view settled(std::string_view code) {
    return code == state::kInProgress ? state::kToDo : code;
}

State stateOf(std::string_view code, std::string_view codeInFile) {
    if (settled(code) == settled(codeInFile)) return State::AsInFile;
    if (code == state::kDone) return State::Done;
    return code == state::kSeen ? State::Seen : State::ToDo;
}

std::string_view codeOf(State kept, std::string_view codeInFile) {
    switch (kept) {
        case State::ToDo:
            return state::kToDo;
        case State::Done:
            return state::kDone;
        case State::Seen:
            return state::kSeen;
        default:
            return codeInFile;
    }
}

}  // namespace

std::vector<std::string_view> codesOf(const WorkList& list) {
    std::vector<std::string_view> codes;
    for (int i = 0; i <= list.last; ++i) codes.push_back(list.lines[i].code);
    return codes;
}

KeptLine keptLineOf(const WorkLine& line, std::string_view codeInFile) {
    return {stateOf(line.code, codeInFile), line.history};
}

std::vector<KeptLine> keptLinesOf(const WorkList& list, std::span<const std::string_view> codes) {
    std::vector<KeptLine> kept(codes.size(), {.state = State::Eliminated, .history = {}});
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& line = list.lines[i];
        const auto at = static_cast<std::size_t>(line.fileLine);
        if (at < kept.size()) kept[at] = keptLineOf(line, codes[at]);
    }
    return kept;
}

int changedLines(const WorkList& list, const KeptState& kept) {
    int changed = 0;
    for (int i = 0; i <= list.last; ++i) {
        const State state = kept.lines.at(static_cast<std::size_t>(i)).state;
        const std::string_view code = list.lines[i].code;
        changed += state == State::Eliminated || settled(codeOf(state, code)) != settled(code);
    }
    return changed;
}

void restoreLines(WorkList& list, const KeptState& kept) {
    int left = 0;
    for (int i = 0; i <= list.last; ++i) {
        const KeptLine& line = kept.lines.at(static_cast<std::size_t>(i));
        if (line.state == State::Eliminated) continue;
        moveLine(list, i, left);
        list.lines[left].code = codeOf(line.state, list.lines[left].code);
        list.lines[left].history = line.history;
        ++left;
    }
    list.last = left - 1;
}
