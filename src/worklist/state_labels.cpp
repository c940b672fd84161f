#include "worklist/state_labels.h"

std::optional<std::wstring_view> labelOf(std::string_view code) {
    if (code.size() == 2 && code[0] == '1') code.remove_prefix(1);
    if (code == "0") return label::kToDo;
    if (code == "1") return label::kDone;
    if (code == "2") return label::kSeen;
    if (code == "3") return label::kInProgress;
    return std::nullopt;
}
