#pragma once

#include "platform/window.h"
#include "searchfolders/configuration_ids.h"

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
