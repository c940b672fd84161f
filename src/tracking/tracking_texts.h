#pragma once

#include <span>
#include <string>

#include "ports/dialogs.h"
#include "tracking/pass_runner.h"

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

/// What the box of an error says when marks were kept.
inline constexpr wchar_t kMarksAreKept[] =
    L"Les marques posées depuis le dernier enregistrement de la liste sont conservées : elles vous "
    L"seront proposées au prochain démarrage.";

/// Whether the marks of an earlier run are to be found again: so many documents.
MessageBoxContent keptMarksBox(int documents);

/// Whether to go past the document whose opening an earlier run did not survive.
MessageBoxContent interruptedOpeningBox(const std::wstring& path);

/// That the session did not save a document, and why: to be tried again, or left open.
MessageBoxContent saveRefusedBox(const std::wstring& path, const std::wstring& reason);

/// Whether to go on though five documents in a row did not open.
MessageBoxContent refusedInARowBox();

/// That marks can't be kept from now on.
MessageBoxContent marksNotKeptBox();

/// That these keys belong to another program, and that none is active therefore.
MessageBoxContent takenKeysBox(std::span<const std::wstring> keys);

/// Where the report of a list is to go: beside the list, unless the user has a better place.
SaveQuestion reportQuestion(const std::wstring& listFile);

/// That there is no report, and why.
MessageBoxContent reportNotWrittenBox(const std::wstring& reason);

/// Whether to save and close so many documents.
MessageBoxContent aloneQuestion(int documents);
MessageBoxContent aloneEndBox(const AloneOutcome& outcome);
