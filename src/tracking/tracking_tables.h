#pragma once

#include "tracking/tracking_ids.h"
#include "tracking/tracking_tooltips.h"

// The list takes the space of a larger window; its commands stay below it, the sequencer beside.
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

// The sequencer's narrow twins show no caption.
inline constexpr AccessibleName kTrackingNames[] = {
    {IDC_FORM3_LIST1, L"Liste courante de fichiers à traiter"},
    {IDC_FORM3_CMDMOINS1, L"Démasquer un niveau de l'arborescence"},
    {IDC_FORM3_CMDPLUS1, L"Masquer un niveau de l'arborescence"},
    {IDC_FORM3_CMD1, L"1-Sauver+Suiv"},
    {IDC_FORM3_CMD2, L"2-Marquer+Suiv."},
    {IDC_FORM3_CMD3, L"3-Sauter+Suiv."},
    {IDC_FORM3_CMD4, L"Précédent"},
};

inline constexpr WindowTemplate kTrackingWindow = {
    .dialogId = IDD_FORM3,
    .tooltips = kTrackingTooltips,
    .headingId = IDC_FORM3_LABEL2,
    .focusId = IDC_FORM3_LIST1,
    .fixedPitchId = IDC_FORM3_LIST1,
    .anchors = kTrackingAnchors,
    .names = kTrackingNames,
};
