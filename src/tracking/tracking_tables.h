#pragma once

#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"

/// Which handler each event of the tracking window goes to.
inline constexpr Binding<TrackingWindow> kTrackingBindings[] = {
    {kTheWindow, Event::Close, &TrackingWindow::Form_Close},
    {IDC_FORM3_CMDSUIV, Event::Click, &TrackingWindow::CmdSuiv_Click, Presses::Single},
    {IDC_FORM3_CMDSUIVQUITTER, Event::Click, &TrackingWindow::CmdSuivQuitter_Click,
     Presses::Single},
    {IDC_FORM3_CMDSUIVSAUTER, Event::Click, &TrackingWindow::CmdSuivSauter_Click, Presses::Single},
    {IDC_FORM3_CMDPRECEDENT, Event::Click, &TrackingWindow::CmdPrecedent_Click, Presses::Single},
    {IDC_FORM3_CMD1, Event::Click, &TrackingWindow::CmdSuiv_Click, Presses::Single},
    {IDC_FORM3_CMD2, Event::Click, &TrackingWindow::CmdSuivQuitter_Click, Presses::Single},
    {IDC_FORM3_CMD3, Event::Click, &TrackingWindow::CmdSuivSauter_Click, Presses::Single},
    {IDC_FORM3_CMD4, Event::Click, &TrackingWindow::CmdPrecedent_Click, Presses::Single},
    {IDC_FORM3_CMDFICHIERLISTE, Event::Click, &TrackingWindow::CmdFichierListe_Click,
     Presses::Single},
    {IDC_FORM3_CMDPLUS1, Event::Click, &TrackingWindow::CmdPlus1_Click},
    {IDC_FORM3_CMDMOINS1, Event::Click, &TrackingWindow::CmdMoins1_Click},
    {IDC_FORM3_CMDCHAF, Event::Click, &TrackingWindow::CmdChaF_Click, Presses::Single},
    {IDC_FORM3_CMDCHAV, Event::Click, &TrackingWindow::CmdChaV_Click, Presses::Single},
    {IDC_FORM3_CMDCHARAZ, Event::Click, &TrackingWindow::CmdChaRaz_Click, Presses::Single},
    {IDC_FORM3_CMDELIF, Event::Click, &TrackingWindow::CmdEliF_Click, Presses::Single},
    {IDC_FORM3_CMDELIFV, Event::Click, &TrackingWindow::CmdEliFV_Click, Presses::Single},
    {IDC_FORM3_CMDELIV, Event::Click, &TrackingWindow::CmdEliV_Click, Presses::Single},
    {IDC_FORM3_CMDPURGE, Event::Click, &TrackingWindow::CmdPurge_Click, Presses::Single},
    {IDC_FORM3_CMDREPA, Event::Click, &TrackingWindow::CmdRepA_Click, Presses::Single},
    {IDC_FORM3_CMDDESELECT, Event::Click, &TrackingWindow::CmdDeSelect_Click},
    {IDC_FORM3_CMDSORTIE, Event::Click, &TrackingWindow::CmdSortie_Click, Presses::Single},
    {IDM_FORM3_TOUJOURSVISIBLE, Event::Click, &TrackingWindow::ToujoursVisible_Click},
    {IDM_FORM3_TOUCHES, Event::Click, &TrackingWindow::Touches_Click},
    {IDM_FORM3_PREMIERPLAN, Event::Click, &TrackingWindow::PremierPlan_Click},
    {IDM_FORM3_RAPPORT, Event::Click, &TrackingWindow::Rapport_Click},
    {IDM_FORM3_PASSERREFUS, Event::Click, &TrackingWindow::PasserRefus_Click},
    {IDM_FORM3_GARDERNONSAUVE, Event::Click, &TrackingWindow::GarderNonSauve_Click},
    {IDM_FORM3_LAISSEROUVERTS, Event::Click, &TrackingWindow::LaisserOuverts_Click},
    {IDM_FORM3_REFERENCES, Event::Click, &TrackingWindow::References_Click},
    {IDM_FORM3_REVENIR, Event::Click, &TrackingWindow::Revenir_Click, Presses::Single},
    {IDM_FORM3_SEUL, Event::Click, &TrackingWindow::Seul_Click, Presses::Single},
};

inline constexpr Tooltip kTrackingTooltips[] = {
    {IDC_FORM3_CMDSUIV, L"Marquer comme FAIT et passer au suivant en sauvegardant  "},
    {IDC_FORM3_CMDSUIVQUITTER, L"Marquer comme VU et passer au suivant sans sauvegarder  "},
    {IDC_FORM3_CMDSUIVSAUTER, L"Passer au suivant sans Marquer ni Sauvegarder  "},
    {IDC_FORM3_CMDPRECEDENT,
     L"Revient au premier fichier \"à faire\" en remontant dans la liste  "},
    {IDC_FORM3_CMD1, L"Marquer comme \"FAIT\" et passer au suivant en sauvegardant"},
    {IDC_FORM3_CMD2, L"Marquer comme \"VU\" et passer au suivant sans sauvegarder"},
    {IDC_FORM3_CMD3, L"Passer au suivant sans Marquer ni Sauvegarder."},
    {IDC_FORM3_LIST1, L"Cliquez pour sélectionner un ou plusieurs fichiers."},
    {IDC_FORM3_CKSILENT,
     L"Charge les fichiers sans messages SAUF si les fichiers sont d'une version précédente  "},
    {IDC_FORM3_CKRECONS, L"Applique une reconstruction de premier niveau aprés chargement  "},
    {IDC_FORM3_CKRECONS2, L"Applique une reconstruction complète aprés chargement  "},
    {IDC_FORM3_CKMINIMISE, L"Ne ferme pas le fichier assemblage supérieur s'il a été désigné  "},
    {IDC_FORM3_CMDSORTIE, L"Sortie de programme"},
    {IDC_FORM3_CMDFICHIERLISTE,
     L"Sauvegarde de la liste actuelle dans un fichier. Ce fichier pourra être récupéré lors d'un "
     L"nouveau démarrage de Tarnwick. "},
    {IDC_FORM3_CMDPLUS1,
     L"Réduit la longueur des noms de fichiers en masquant un niveau supplémentaire de "
     L"l'arborescence  "},
    {IDC_FORM3_CMDMOINS1,
     L"Rallonge la longueur des noms de fichiers en démasquant un niveau supplémentaire de "
     L"l'arborescence"},
    {IDC_FORM3_CMDCHAF, L"Change les lignes selectionnées en F"},
    {IDC_FORM3_CMDCHAV, L"Change les lignes sélectionnées en V"},
    {IDC_FORM3_CMDCHARAZ, L"Remet les fichiers sélectionnés en état 'à faire'"},
    {IDC_FORM3_CMDELIF, L"Elimine les fichiers marqués F parmi les lignes selectionnées"},
    {IDC_FORM3_CMDELIFV, L"Elimine les fichiers marqués F et V parmi les lignes selectionnées"},
    {IDC_FORM3_CMDELIV, L"Elimine les fichiers marqués V parmi les lignes selectionnées"},
    {IDC_FORM3_CMDPURGE,
     L"Elimine les lignes F et V parmi toute la liste (sans tenir compte des sélections)"},
    {IDC_FORM3_CMDREPA,
     L"Reprendre le traitement à la ligne sélectionée si elle est 'à faire' sinon à la premiére "
     L"ligne 'à faire' aprés la ligne sélectionnée"},
    {IDC_FORM3_CMDDESELECT, L"Annule la sélection courante  "},
};

// In a larger window the list grows. Its commands stay below it, the sequencer beside it.
inline constexpr Anchor kTrackingAnchors[] = {
    {IDC_FORM3_LABEL2, Growth::Stretch, Growth::Stay},
    {IDC_FORM3_TXTETAT, Growth::Stretch, Growth::Stay},

    {IDC_FORM3_FRAME1, Growth::Stretch, Growth::Stretch},
    {IDC_FORM3_CMDMOINS1, Growth::Move, Growth::Stay},
    {IDC_FORM3_NNIVEAU1, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMDPLUS1, Growth::Move, Growth::Stay},
    {IDC_FORM3_LIST1, Growth::Stretch, Growth::Stretch},
    {IDC_FORM3_CMDCHAF, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDCHAV, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDCHARAZ, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDREPA, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDELIF, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDELIV, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDELIFV, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDDESELECT, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDFICHIERLISTE, Growth::Stay, Growth::Move},
    {IDC_FORM3_CMDPURGE, Growth::Stay, Growth::Move},

    {IDC_FORM3_CMDSUIV, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMD1, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMDSUIVQUITTER, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMD2, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMDSUIVSAUTER, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMD3, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMDPRECEDENT, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMD4, Growth::Move, Growth::Stay},
    {IDC_FORM3_FRAME2, Growth::Move, Growth::Stay},
    {IDC_FORM3_CKSILENT, Growth::Move, Growth::Stay},
    {IDC_FORM3_CKRECONS, Growth::Move, Growth::Stay},
    {IDC_FORM3_CKRECONS2, Growth::Move, Growth::Stay},
    {IDC_FORM3_CMDSORTIE, Growth::Move, Growth::Move},
};

// The sequencer's narrow twins have no captions.
inline constexpr AccessibleName kTrackingNames[] = {
    {IDC_FORM3_LIST1, L"Liste courante de fichiers à traiter"},
    {IDC_FORM3_CMDMOINS1, L"Démasquer un niveau de l'arborescence"},
    {IDC_FORM3_CMDPLUS1, L"Masquer un niveau de l'arborescence"},
    {IDC_FORM3_CMD1, L"1-Sauver+Suiv"},
    {IDC_FORM3_CMD2, L"2-Marquer+Suiv."},
    {IDC_FORM3_CMD3, L"3-Sauter+Suiv."},
    {IDC_FORM3_CMD4, L"Précédent"},
};

inline constexpr SystemMenuItem kTrackingSystemMenu[] = {
    {IDM_FORM3_TOUJOURSVISIBLE, L"Toujours visible"},
    {IDM_FORM3_TOUCHES, L"Touches actives dans SolidWorks"},
    {IDM_FORM3_PREMIERPLAN, L"SolidWorks au premier plan, toutes versions"},
    {IDM_FORM3_RAPPORT, L"Exporter le rapport..."},
    {.id = IDM_FORM3_PASSERREFUS,
     .text = L"Passer les documents qui ne s'ouvrent pas",
     .startsGroup = true},
    {IDM_FORM3_GARDERNONSAUVE, L"Ne pas fermer sans enregistrement réussi"},
    {IDM_FORM3_LAISSEROUVERTS, L"Laisser ouverts les documents qui l'étaient"},
    {IDM_FORM3_REFERENCES, L"Chercher les références à côté du document"},
    {.id = IDM_FORM3_REVENIR,
     .text = L"Revenir sur la dernière marque\tCtrl+Z",
     .startsGroup = true},
    {IDM_FORM3_SEUL, L"Continuer seul..."},
};

inline constexpr HotKey kTrackingHotKeys[] = {
    {IDC_FORM3_CMDSUIV, 1, L"Ctrl+Maj+1"},
    {IDC_FORM3_CMDSUIVQUITTER, 2, L"Ctrl+Maj+2"},
    {IDC_FORM3_CMDSUIVSAUTER, 3, L"Ctrl+Maj+3"},
    {IDC_FORM3_CMDPRECEDENT, 4, L"Ctrl+Maj+4"},
};

inline constexpr WindowTemplate kTrackingWindow = {
    .dialogId = IDD_FORM3,
    .tooltips = kTrackingTooltips,
    .headingId = IDC_FORM3_LABEL2,
    .focusId = IDC_FORM3_LIST1,
    .fixedPitchId = IDC_FORM3_LIST1,
    .liveId = IDC_FORM3_TXTETAT,
    .anchors = kTrackingAnchors,
    .names = kTrackingNames,
    .shrinks = {0, 86},
    .systemMenu = kTrackingSystemMenu,
    .hotKeys = kTrackingHotKeys,
};
