#pragma once

#include "platform/window.h"
#include "selection/selection_ids.h"

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
