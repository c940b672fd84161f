#pragma once

#include "searchfolders/configuration_ids.h"
#include "searchfolders/configuration_window.h"

/// Which handler each event of the configuration window goes to.
inline constexpr Binding<ConfigurationWindow> kConfigurationBindings[] = {
    {kTheWindow, Event::Close, &ConfigurationWindow::Form_Close},
    {IDC_FORM4_TABSTRIP1, Event::Click, &ConfigurationWindow::TabStrip1_Click},
    {IDC_FORM4_LIST1, Event::Click, &ConfigurationWindow::List1_Click},
    {IDC_FORM4_CMDCREER, Event::Click, &ConfigurationWindow::CmdCreer_Click},
    {IDC_FORM4_CMDMODIFIER, Event::Click, &ConfigurationWindow::CmdModifier_Click},
    {IDC_FORM4_CMDRENOMMER, Event::Click, &ConfigurationWindow::CmdRenommer_Click},
    {IDC_FORM4_CMDDETRUIRE, Event::Click, &ConfigurationWindow::CmdDetruire_Click, Presses::Single},
    {IDC_FORM4_CMDENREGISTER, Event::Click, &ConfigurationWindow::CmdEnregister_Click,
     Presses::Single},
    {IDC_FORM4_CMDCHOISIR, Event::Click, &ConfigurationWindow::CmdChoisir_Click, Presses::Single},
    {IDC_FORM4_CMDANNULER, Event::Click, &ConfigurationWindow::CmdAnnuler_Click, Presses::Single},
    {IDC_FORM4_DRIVE1, Event::Click, &ConfigurationWindow::Drive1_Change, Presses::All,
     DuringSearch::Reopen},
    {IDC_FORM4_DIR1, Event::DoubleClick, &ConfigurationWindow::Dir1_DblClick, Presses::All,
     DuringSearch::Reopen},
    {IDC_FORM4_CMDAJO1, Event::Click, &ConfigurationWindow::CmdAjo1_Click},
    {IDC_FORM4_CMDAJO2, Event::Click, &ConfigurationWindow::CmdAjo2_Click},
    {IDC_FORM4_CMDRETIR1, Event::Click, &ConfigurationWindow::CmdRetir1_Click},
    {IDC_FORM4_CMDRETIR2, Event::Click, &ConfigurationWindow::CmdRetir2_Click},
    {IDC_FORM4_CMDPLUS1, Event::Click, &ConfigurationWindow::CmdPlus1_Click},
    {IDC_FORM4_CMDMOINS1, Event::Click, &ConfigurationWindow::CmdMoins1_Click},
    {IDC_FORM4_CMDVALIDER, Event::Click, &ConfigurationWindow::CmdValider_Click, Presses::Single},
    {IDC_FORM4_CMDANNULER1, Event::Click, &ConfigurationWindow::CmdAnnuler1_Click, Presses::Single},
};

inline constexpr Tooltip kConfigurationTooltips[] = {
    {IDC_FORM4_LIST1,
     L"Liste des configurations. Cliquez sur une ligne, la liste des répertoires correspondante "
     L"apparaitra à droite.  "},
    {IDC_FORM4_LIST3, L"liste des répertoires de la configuration sélectionnée."},
    {IDC_FORM4_CMDCREER, L"Créer une nouvelle configuration.  "},
    {IDC_FORM4_CMDMODIFIER, L"Modifier la configuration sélectionnée.  "},
    {IDC_FORM4_CMDDETRUIRE, L"Détruire la configuration sélectionnée.  "},
    {IDC_FORM4_CMDENREGISTER, L"Sauvegarder l'ensemble des configurations.  "},
    {IDC_FORM4_CMDCHOISIR, L"Rendre la configuration sélectionnée effective dans SolidWorks.  "},
    {IDC_FORM4_CMDANNULER, L"Annuler"},
    {IDC_FORM4_CMDAJO1,
     L"Ajoute à la liste de la configuration le répertoire sélectionné (à gauche)."},
    {IDC_FORM4_CMDAJO2,
     L"Ajoute à la liste de configuration le répertoire sélectionné (à gauche) ainsi que tous ses "
     L"sous-répertoires."},
    {IDC_FORM4_CMDRETIR1,
     L"Enlève à la liste de configuration le répertoire sélectionné (à droite)."},
    {IDC_FORM4_CMDRETIR2,
     L"Enlève à la liste de configuration le répertoire sélectionné (à droite) ainsi que tous les "
     L"sous-répertoires."},
    {IDC_FORM4_CMDMOINS1,
     L"Rallonge la longueur des noms de fichiers en démasquant un niveau supplémentaire de "
     L"l'arborescence"},
    {IDC_FORM4_CMDPLUS1,
     L"Réduit la longueur des noms de fichiers en masquant un niveau supplémentaire de "
     L"l'arborescence "},
    {IDC_FORM4_NNIV, L"Nombre de niveau masqués."},
};

// In a larger window the lists of a configuration's directories become wider, and all lists higher.
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

// Fields and lists have no captions, and signs say little when read out.
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
