#pragma once

#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"

/// Which handler each event of the tracking window goes to.
inline constexpr Binding<TrackingWindow> kTrackingBindings[] = {
    {kTheWindow, Event::Close, &TrackingWindow::Form_Close},
    {IDC_FORM3_CMDSUIV, Event::Click, &TrackingWindow::CmdSuiv_Click},
    {IDC_FORM3_CMDSUIVQUITTER, Event::Click, &TrackingWindow::CmdSuivQuitter_Click},
    {IDC_FORM3_CMDSUIVSAUTER, Event::Click, &TrackingWindow::CmdSuivSauter_Click},
    {IDC_FORM3_CMDPRECEDENT, Event::Click, &TrackingWindow::CmdPrecedent_Click},
    {IDC_FORM3_CMD1, Event::Click, &TrackingWindow::Cmd1_Click},
    {IDC_FORM3_CMD2, Event::Click, &TrackingWindow::Cmd2_Click},
    {IDC_FORM3_CMD3, Event::Click, &TrackingWindow::Cmd3_Click},
    {IDC_FORM3_CMD4, Event::Click, &TrackingWindow::Cmd4_Click},
    {IDC_FORM3_CMDFICHIERLISTE, Event::Click, &TrackingWindow::CmdFichierListe_Click},
    {IDC_FORM3_CMDPLUS1, Event::Click, &TrackingWindow::CmdPlus1_Click},
    {IDC_FORM3_CMDMOINS1, Event::Click, &TrackingWindow::CmdMoins1_Click},
    {IDC_FORM3_CMDCHAF, Event::Click, &TrackingWindow::CmdChaF_Click},
    {IDC_FORM3_CMDCHAV, Event::Click, &TrackingWindow::CmdChaV_Click},
    {IDC_FORM3_CMDCHARAZ, Event::Click, &TrackingWindow::CmdChaRaz_Click},
    {IDC_FORM3_CMDELIF, Event::Click, &TrackingWindow::CmdEliF_Click},
    {IDC_FORM3_CMDELIFV, Event::Click, &TrackingWindow::CmdEliFV_Click},
    {IDC_FORM3_CMDELIV, Event::Click, &TrackingWindow::CmdEliV_Click},
    {IDC_FORM3_CMDPURGE, Event::Click, &TrackingWindow::CmdPurge_Click},
    {IDC_FORM3_CMDREPA, Event::Click, &TrackingWindow::CmdRepA_Click},
    {IDC_FORM3_CMDDESELECT, Event::Click, &TrackingWindow::CmdDeSelect_Click},
    {IDC_FORM3_CMDMEMO, Event::Click, &TrackingWindow::CmdMemo_Click},
    {IDC_FORM3_CMDSORTIE, Event::Click, &TrackingWindow::CmdSortie_Click},
};
