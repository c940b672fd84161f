#pragma once

#include "searchfolders/configuration_ids.h"
#include "searchfolders/configuration_tooltips.h"

// On both pages the directories of a configuration take the width of a larger window, all lists
// take the height.
inline constexpr Anchor kConfigurationAnchors[] = {
    {IDC_FORM4_TABSTRIP1, Growth::Stretch, Growth::Stretch},

    {IDC_FORM4_FRATAB0, Growth::Stretch, Growth::Stretch},
    {IDC_FORM4_LIST1, Growth::Stay, Growth::Stretch},
    {IDC_FORM4_LABEL2, Growth::Stretch, Growth::Stay},
    {IDC_FORM4_LIST3, Growth::Stretch, Growth::Stretch},
    {IDC_FORM4_LABEL4, Growth::Stay, Growth::Move},
    {IDC_FORM4_CMDCREER, Growth::Stay, Growth::Move},
    {IDC_FORM4_CMDMODIFIER, Growth::Stay, Growth::Move},
    {IDC_FORM4_CMDRENOMMER, Growth::Stay, Growth::Move},
    {IDC_FORM4_CMDDETRUIRE, Growth::Stay, Growth::Move},
    {IDC_FORM4_CMDENREGISTER, Growth::Move, Growth::Move},
    {IDC_FORM4_CMDCHOISIR, Growth::Move, Growth::Move},
    {IDC_FORM4_CMDANNULER, Growth::Move, Growth::Move},

    {IDC_FORM4_FRATAB1, Growth::Stretch, Growth::Stretch},
    {IDC_FORM4_DIR1, Growth::Stay, Growth::Stretch},
    {IDC_FORM4_CMDMOINS1, Growth::Move, Growth::Stay},
    {IDC_FORM4_NNIV, Growth::Move, Growth::Stay},
    {IDC_FORM4_CMDPLUS1, Growth::Move, Growth::Stay},
    {IDC_FORM4_LIST2, Growth::Stretch, Growth::Stretch},
    {IDC_FORM4_LABEL3, Growth::Stay, Growth::Move},
    {IDC_FORM4_NOMDELACONF, Growth::Stretch, Growth::Move},
    {IDC_FORM4_CMDVALIDER, Growth::Move, Growth::Move},
    {IDC_FORM4_CMDANNULER1, Growth::Move, Growth::Move},
};

// Fields and lists have no caption of their own, signs say little when they are heard.
inline constexpr AccessibleName kConfigurationNames[] = {
    {IDC_FORM4_LIST1, L"Liste des configurations"},
    {IDC_FORM4_LIST3, L"Liste des répertoires de la configuration"},
    {IDC_FORM4_DRIVE1, L"Unité"},
    {IDC_FORM4_DIR1, L"Répertoire"},
    {IDC_FORM4_CMDAJO1, L"Ajouter le répertoire"},
    {IDC_FORM4_CMDAJO2, L"Ajouter le répertoire et ses sous-répertoires"},
    {IDC_FORM4_CMDRETIR1, L"Enlever le répertoire"},
    {IDC_FORM4_CMDRETIR2, L"Enlever le répertoire et ses sous-répertoires"},
    {IDC_FORM4_CMDMOINS1, L"Démasquer un niveau de l'arborescence"},
    {IDC_FORM4_CMDPLUS1, L"Masquer un niveau de l'arborescence"},
    {IDC_FORM4_LIST2, L"Répertoires de la configuration modifiée"},
    {IDC_FORM4_NOMDELACONF, L"Nom de la configuration"},
};

inline constexpr WindowTemplate kConfigurationWindow = {
    .dialogId = IDD_FORM4,
    .tooltips = kConfigurationTooltips,
    .focusId = IDC_FORM4_LIST1,
    .anchors = kConfigurationAnchors,
    .names = kConfigurationNames,
};
