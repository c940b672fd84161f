#pragma once

#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"

/// Which handler each event of the tracking window goes to.
inline constexpr Binding<Form3> kForm3Bindings[] = {
    {kTheWindow, Event::Close, &Form3::Form_Close},
    {IDC_FORM3_CMDSUIV, Event::Click, &Form3::CmdSuiv_Click},
    {IDC_FORM3_CMDSUIVQUITTER, Event::Click, &Form3::CmdSuivQuitter_Click},
    {IDC_FORM3_CMDSUIVSAUTER, Event::Click, &Form3::CmdSuivSauter_Click},
    {IDC_FORM3_CMDPRECEDENT, Event::Click, &Form3::CmdPrecedent_Click},
    {IDC_FORM3_CMD1, Event::Click, &Form3::Cmd1_Click},
    {IDC_FORM3_CMD2, Event::Click, &Form3::Cmd2_Click},
    {IDC_FORM3_CMD3, Event::Click, &Form3::Cmd3_Click},
    {IDC_FORM3_CMD4, Event::Click, &Form3::Cmd4_Click},
    {IDC_FORM3_CMDFICHIERLISTE, Event::Click, &Form3::CmdFichierListe_Click},
    {IDC_FORM3_CMDPLUS1, Event::Click, &Form3::CmdPlus1_Click},
    {IDC_FORM3_CMDMOINS1, Event::Click, &Form3::CmdMoins1_Click},
    {IDC_FORM3_CMDCHAF, Event::Click, &Form3::CmdChaF_Click},
    {IDC_FORM3_CMDCHAV, Event::Click, &Form3::CmdChaV_Click},
    {IDC_FORM3_CMDCHARAZ, Event::Click, &Form3::CmdChaRaz_Click},
    {IDC_FORM3_CMDELIF, Event::Click, &Form3::CmdEliF_Click},
    {IDC_FORM3_CMDELIFV, Event::Click, &Form3::CmdEliFV_Click},
    {IDC_FORM3_CMDELIV, Event::Click, &Form3::CmdEliV_Click},
    {IDC_FORM3_CMDPURGE, Event::Click, &Form3::CmdPurge_Click},
    {IDC_FORM3_CMDREPA, Event::Click, &Form3::CmdRepA_Click},
    {IDC_FORM3_CMDDESELECT, Event::Click, &Form3::CmdDeSelect_Click},
    {IDC_FORM3_CMDMEMO, Event::Click, &Form3::CmdMemo_Click},
    {IDC_FORM3_CMDSORTIE, Event::Click, &Form3::CmdSortie_Click},
};
