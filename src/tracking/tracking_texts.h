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
// The text names 'F' alone although seen lines are removed, too, as the title says.
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

// The two texts differ in one word, on purpose.
inline constexpr wchar_t kNothingSelected[] =
    L"Pour cette fonction , il faut avoir sélectionné au moins une ligne ";
inline constexpr wchar_t kNothingSelectedToResume[] =
    L"Pour cette fonction , il faut avoir sélectionner au moins une ligne ";

/// A Yes/No box with the stop icon, No the default; its two lines are parted by LF CR.
MessageBoxContent boxOf(const Question& question);

/// The box that a command shows when no line is selected.
MessageBoxContent missingSelectionBox(const wchar_t* text);

/// What the box of a fatal error adds when marks were kept.
inline constexpr wchar_t kMarksAreKept[] =
    L"Les marques posées depuis le dernier enregistrement de la liste sont conservées : elles vous "
    L"seront proposées au prochain démarrage.";

/// Asks whether to restore the marks of an earlier run, which concern so many documents.
MessageBoxContent keptMarksBox(int documents);

/// Asks whether to pass over the document whose opening an earlier run did not survive.
MessageBoxContent interruptedOpeningBox(const std::wstring& path);

/// Tells that the session did not save a document, and why; asks whether to try again or leave it
/// open.
MessageBoxContent saveRefusedBox(const std::wstring& path, const std::wstring& reason);

/// Asks whether to go on although five documents in a row did not open.
MessageBoxContent refusedInARowBox();

/// Tells that marks can't be kept from now on.
MessageBoxContent marksNotKeptBox();

/// Tells that these keys belong to another program, so that none is active.
std::wstring takenKeysText(std::span<const std::wstring> keys);

/// Asks where to save the report of a list: beside the list, unless the user chooses otherwise.
SaveQuestion reportQuestion(const std::wstring& listFile);

/// Tells that there is no report, and why.
std::wstring reportNotWrittenText(const std::wstring& reason);

/// Asks whether to save and close so many documents.
MessageBoxContent aloneQuestion(int documents);
/// Tells how that went.
MessageBoxContent aloneEndBox(const AloneOutcome& outcome);
