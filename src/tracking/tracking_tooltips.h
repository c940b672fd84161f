#pragma once

#include "platform/window.h"
#include "tracking/tracking_ids.h"

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
