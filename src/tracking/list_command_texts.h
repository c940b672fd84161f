#pragma once

#include "ports/message_boxes.h"

/// What a list command asks before it changes anything.
struct Question {
    const wchar_t* firstLine;
    const wchar_t* secondLine;
    const wchar_t* title;
};

inline constexpr Question kQuestionChaF = {L"Voulez vous vraiment passer les lignes sélectionnées ",
                                           L"en mode 'Fait'", L"Passage en mode 'F'"};
inline constexpr Question kQuestionChaV = {L"Voulez vous vraiment passer les lignes sélectionnées ",
                                           L"en mode 'Vu'", L"Passage en mode 'V'"};
inline constexpr Question kQuestionChaRaz = {
    L"Voulez vous vraiment passer les lignes sélectionnées ", L"en mode 'à traiter'",
    L"Passage en mode 'A Traiter'"};
// It names 'F' alone and removes seen lines too; its title says so.
inline constexpr Question kQuestionEliF = {
    L"Voulez vous vraiment supprimer les fichiers marqués 'F' ", L"parmi les lignes sélectionnées",
    L"Elimination 'F' et 'V' "};
inline constexpr Question kQuestionEliFV = {
    L"Voulez vous vraiment supprimer les fichiers marqués 'F' et 'V'",
    L"parmi les lignes sélectionnées", L"Elimination 'F' et 'V' "};
inline constexpr Question kQuestionEliV = {
    L"Voulez vous vraiment supprimer les fichiers marqués 'V'", L"parmi les lignes sélectionnées",
    L"Elimination 'V' "};
inline constexpr Question kQuestionPurge = {
    L"Voulez vous vraiment supprimer tous les fichiers marqués 'F' et 'V'",
    L"sans tenir compte des lignes sélectionnées ? ", L"Elimination 'F' et 'V' "};

// The two texts differ in one word, and both are meant.
inline constexpr wchar_t kNothingSelected[] =
    L"Pour cette fonction , il faut avoir sélectionné au moins une ligne ";
inline constexpr wchar_t kNothingSelectedToResume[] =
    L"Pour cette fonction , il faut avoir sélectionner au moins une ligne ";

/// A Yes/No box with the stop icon, No the default; its two lines are parted by LF CR.
MessageBoxContent boxOf(const Question& question);

/// The box that a command shows when no line is selected.
MessageBoxContent missingSelectionBox(const wchar_t* text);
