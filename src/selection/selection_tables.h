#pragma once

#include "selection/selection_ids.h"
#include "selection/selection_window.h"

/// Which handler each event of the selection window goes to.
inline constexpr Binding<SelectionWindow> kSelectionBindings[] = {
    {kTheWindow, Event::Close, &SelectionWindow::Form_Close},
    {kTheWindow, Event::Drop, &SelectionWindow::Form_Drop},
    {IDM_FORM1_IMPORTER, Event::Click, &SelectionWindow::Importer_Click, Presses::Single},
    {IDM_FORM1_ORDRE, Event::Click, &SelectionWindow::Ordre_Click},
    {IDC_FORM1_UNITE, Event::Click, &SelectionWindow::unite_Change, Presses::All,
     DuringSearch::Reopen},
    {IDC_FORM1_REPERT, Event::DoubleClick, &SelectionWindow::repert_DblClick, Presses::All,
     DuringSearch::Reopen},
    {IDC_FORM1_TYPEF, Event::Change, &SelectionWindow::repert_Change, Presses::All,
     DuringSearch::Restart},
    {IDC_FORM1_TYPEF, Event::Click, &SelectionWindow::repert_Change, Presses::All,
     DuringSearch::Restart},
    {IDC_FORM1_TYPEF, Event::Validate, &SelectionWindow::typef_Validate},
    {IDC_FORM1_SOUSREP, Event::Click, &SelectionWindow::sousrep_Click, Presses::All,
     DuringSearch::Restart},
    {IDC_FORM1_LIST1, Event::Click, &SelectionWindow::List1_Click},
    {IDC_FORM1_CMDCOCHE, Event::Click, &SelectionWindow::CmdCoche_Click},
    {IDC_FORM1_CMD_INV, Event::Click, &SelectionWindow::Cmd_Inv_Click},
    {IDC_FORM1_N_FILTRE, Event::Enter, &SelectionWindow::cmd_ajo_Click},
    {IDC_FORM1_CMD_AJO, Event::Click, &SelectionWindow::cmd_ajo_Click},
    {IDC_FORM1_CMD_ENL, Event::Click, &SelectionWindow::cmd_enl_Click},
    {IDC_FORM1_CMDPLUS, Event::Click, &SelectionWindow::CmdPlus_Click},
    {IDC_FORM1_CMDMOINS, Event::Click, &SelectionWindow::CmdMoins_Click},
    {IDC_FORM1_CMDAP, Event::Click, &SelectionWindow::CmdAP_Click, Presses::Single},
    {IDC_FORM1_CMDREPDEF, Event::Click, &SelectionWindow::CmdRepDef_Click, Presses::Single},
    {IDC_FORM1_CMD_TRACER, Event::Click, &SelectionWindow::cmd_tracer_Click, Presses::Single},
    {IDC_FORM1_CMD_SORTIE, Event::Click, &SelectionWindow::cmd_sortie_Click, Presses::Single},
    {IDC_FORM1_CMD_ANNULER, Event::Click, &SelectionWindow::cmd_annuler_Click, Presses::Single},
};

inline constexpr Tooltip kSelectionTooltips[] = {
    {IDC_FORM1_SOUSREP, L"Indique si il faut traiter également les sous répertoires  "},
    {IDC_FORM1_REPERT, L"Double cliquer pour sélectionner le répertoire souhaité  "},
    {IDC_FORM1_LIST1, L"Les lignes commençant par un X correspondent à des fichiers sélectionnés."},
    {IDC_FORM1_CMDMOINS,
     L"Rallonge la longueur des noms de fichiers en démasquant un niveau supplémentaire de "
     L"l'arborescence"},
    {IDC_FORM1_CMDPLUS,
     L"Réduit la longueur des noms de fichiers en masquant un niveau supplémentaire de "
     L"l'arborescence  "},
    {IDC_FORM1_CMD_AJO,
     L"Ajoute à la sélection les fichiers dont le nom comprend la chaine de caractère ci-contre."},
    {IDC_FORM1_N_FILTRE, L"Chaine de caractère utilisée par les deux boutons ci contre."},
    {IDC_FORM1_CMD_ENL,
     L"Enlève de la sélection les fichiers dont le nom comprend la chaine de caractère "
     L"ci-contre."},
    {IDC_FORM1_CMDCOCHE, L"Ajoute ou enlève de la sélection les fichiers marqués en bleu."},
    {IDC_FORM1_CMD_INV,
     L"Inverse complétement les fichiers sélectionnés (sur toute la liste)  sans tenir compte des "
     L"lignes marquées de bleu."},
    {IDC_FORM1_CMDREPDEF, L"Gére la liste des répertoires de recherche fichiers SOLIDWORKS"},
    {IDC_FORM1_CMD_ANNULER, L"Sortie Immédiate"},
    {IDC_FORM1_CMD_SORTIE, L"Sortie avec sauvegarde de la position de la fenêtre."},
    {IDC_FORM1_CMD_TRACER, L"Démarre le traitement de la liste des fichiers sélectionnés.  "},
    {IDC_FORM1_CMDAP, L"A Propos de Tarnwick"},
};

// In a larger window the list of documents becomes wider, and both lists higher.
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

// Fields and lists have no captions, and "-", "+" and "AP" say little when read out.
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

inline constexpr SystemMenuItem kSelectionSystemMenu[] = {
    {IDM_FORM1_IMPORTER, L"Importer une liste..."},
    {IDM_FORM1_ORDRE, L"Pièces, puis assemblages, puis mises en plan"},
};

inline constexpr WindowTemplate kSelectionWindow = {
    .dialogId = IDD_FORM1,
    .tooltips = kSelectionTooltips,
    .headingId = IDC_FORM1_LABEL3,
    .focusId = IDC_FORM1_REPERT,
    .fixedPitchId = IDC_FORM1_LIST1,
    .anchors = kSelectionAnchors,
    .names = kSelectionNames,
    .shrinks = {18, 98},
    .systemMenu = kSelectionSystemMenu,
    .takesDrops = true,
};
