#pragma once

#include <string>

#include "ports/message_boxes.h"

/// What the box of an error says when marks were kept.
inline constexpr wchar_t kMarksAreKept[] =
    L"Les marques posées depuis le dernier enregistrement de la liste sont conservées : elles vous "
    L"seront proposées au prochain démarrage.";

/// Whether the marks of an earlier run are to be found again: so many documents.
MessageBoxContent keptMarksBox(int documents);

/// Whether to go past the document whose opening an earlier run did not survive.
MessageBoxContent interruptedOpeningBox(const std::wstring& path);

/// That marks can't be kept from now on.
MessageBoxContent marksNotKeptBox();
