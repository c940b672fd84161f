#include "worklist/state_labels.h"

StateLabels standardLabels() {
    return {.LibAFaire = std::wstring(14, L' '),
            .LibX = L" X   ",
            .LibVu = L" Vu            ",
            .LibEnCours = L" EnCours  ",
            .LibFait = L" Fait          "};
}

const std::wstring* labelOf(const StateLabels& labels, std::string_view code) {
    if (code.size() == 2 && code[0] == '1') code.remove_prefix(1);
    if (code == "0") return &labels.LibAFaire;
    if (code == "1") return &labels.LibFait;
    if (code == "2") return &labels.LibVu;
    if (code == "3") return &labels.LibEnCours;
    return nullptr;
}
