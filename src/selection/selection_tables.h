#pragma once

#include "selection/selection_ids.h"
#include "selection/selection_tooltips.h"

// The list of documents takes the width of a larger window, both lists take the height.
inline constexpr Anchor kSelectionAnchors[] = {
    {IDC_FORM1_LABEL3, Growth::Stretch, Growth::Stay},
    {IDC_FORM1_CMDAP, Growth::Move, Growth::Stay},

    {IDC_FORM1_FRAME5, Growth::Stay, Growth::Stretch},
    {IDC_FORM1_REPERT, Growth::Stay, Growth::Stretch},

    {IDC_FORM1_FRAME7, Growth::Stretch, Growth::Stretch},
    {IDC_FORM1_CMDMOINS, Growth::Move, Growth::Stay},
    {IDC_FORM1_NNIVEAU, Growth::Move, Growth::Stay},
    {IDC_FORM1_CMDPLUS, Growth::Move, Growth::Stay},
    {IDC_FORM1_LIST1, Growth::Stretch, Growth::Stretch},
    {IDC_FORM1_FRAME10, Growth::Stretch, Growth::Move},
    {IDC_FORM1_CMD_AJO, Growth::Stay, Growth::Move},
    {IDC_FORM1_N_FILTRE, Growth::Stretch, Growth::Move},
    {IDC_FORM1_CMD_ENL, Growth::Move, Growth::Move},
    {IDC_FORM1_CMDCOCHE, Growth::Move, Growth::Move},
    {IDC_FORM1_CMD_INV, Growth::Move, Growth::Move},

    {IDC_FORM1_CMDREPDEF, Growth::Stay, Growth::Move},
    {IDC_FORM1_CMD_ANNULER, Growth::Stay, Growth::Move},
    {IDC_FORM1_CMD_SORTIE, Growth::Stay, Growth::Move},
    {IDC_FORM1_CMD_TRACER, Growth::Move, Growth::Move},
};

// Fields and lists have no caption of their own, "-", "+" and "AP" say little when they are heard.
inline constexpr AccessibleName kSelectionNames[] = {
    {IDC_FORM1_TYPEF, L"Type de fichiers à traiter"},
    {IDC_FORM1_UNITE, L"Unité"},
    {IDC_FORM1_REPERT, L"Répertoire"},
    {IDC_FORM1_LIST1, L"Liste des fichiers"},
    {IDC_FORM1_N_FILTRE, L"Filtre de sélection de fichiers"},
    {IDC_FORM1_CMDMOINS, L"Démasquer un niveau de l'arborescence"},
    {IDC_FORM1_CMDPLUS, L"Masquer un niveau de l'arborescence"},
    {IDC_FORM1_CMDAP, L"A Propos de Tarnwick"},
};

inline constexpr WindowTemplate kSelectionWindow = {
    .dialogId = IDD_FORM1,
    .tooltips = kSelectionTooltips,
    .headingId = IDC_FORM1_LABEL3,
    .focusId = IDC_FORM1_REPERT,
    .fixedPitchId = IDC_FORM1_LIST1,
    .anchors = kSelectionAnchors,
    .names = kSelectionNames,
};
