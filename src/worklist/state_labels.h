#pragma once

#include <string>
#include <string_view>

/// What stands before a path in the lists. The widths differ on purpose.
struct StateLabels {
    std::wstring LibAFaire;   ///< to do
    std::wstring LibX;        ///< chosen, in the selection window
    std::wstring LibVu;       ///< seen
    std::wstring LibEnCours;  ///< in progress
    std::wstring LibFait;     ///< done
};

/// The labels as start-up sets them.
StateLabels standardLabels();

/// The label of a state code, with or without the reload flag's leading 1; null for other codes.
const std::wstring* labelOf(const StateLabels& labels, std::string_view code);
