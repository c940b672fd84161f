#pragma once

#include <optional>
#include <string_view>

/// What stands before a path in the lists. The widths differ on purpose.
namespace label {
inline constexpr std::wstring_view kToDo = L"              ";
inline constexpr std::wstring_view kChosen = L" X   ";  ///< in the selection window
inline constexpr std::wstring_view kSeen = L" Vu            ";
inline constexpr std::wstring_view kInProgress = L" EnCours  ";
inline constexpr std::wstring_view kDone = L" Fait          ";
}  // namespace label

/// The label of a state code, with or without the reload flag's leading 1; none for other codes.
std::optional<std::wstring_view> labelOf(std::string_view code);
