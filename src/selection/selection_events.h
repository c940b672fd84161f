#pragma once

#include "selection/selection_ids.h"
#include "selection/selection_window.h"

/// Which handler each event of the selection window goes to.
inline constexpr Binding<SelectionWindow> kSelectionBindings[] = {
    {kTheWindow, Event::Close, &SelectionWindow::Form_Close},
    {IDC_FORM1_UNITE, Event::Click, &SelectionWindow::unite_Change},
    {IDC_FORM1_REPERT, Event::Click, &SelectionWindow::repert_Click},
    {IDC_FORM1_REPERT, Event::DoubleClick, &SelectionWindow::repert_DblClick},
    {IDC_FORM1_TYPEF, Event::Change, &SelectionWindow::typef_Change},
    {IDC_FORM1_TYPEF, Event::Click, &SelectionWindow::typef_Click},
    {IDC_FORM1_TYPEF, Event::Validate, &SelectionWindow::typef_Validate},
    {IDC_FORM1_SOUSREP, Event::Click, &SelectionWindow::sousrep_Click},
    {IDC_FORM1_LIST1, Event::Click, &SelectionWindow::List1_Click},
    {IDC_FORM1_CMDCOCHE, Event::Click, &SelectionWindow::CmdCoche_Click},
    {IDC_FORM1_CMD_INV, Event::Click, &SelectionWindow::Cmd_Inv_Click},
    {IDC_FORM1_N_FILTRE, Event::Enter, &SelectionWindow::cmd_ajo_Click},
    {IDC_FORM1_CMD_AJO, Event::Click, &SelectionWindow::cmd_ajo_Click},
    {IDC_FORM1_CMD_ENL, Event::Click, &SelectionWindow::cmd_enl_Click},
    {IDC_FORM1_CMDPLUS, Event::Click, &SelectionWindow::CmdPlus_Click},
    {IDC_FORM1_CMDMOINS, Event::Click, &SelectionWindow::CmdMoins_Click},
    {IDC_FORM1_CMDAP, Event::Click, &SelectionWindow::CmdAP_Click},
    {IDC_FORM1_CMDREPDEF, Event::Click, &SelectionWindow::CmdRepDef_Click},
    {IDC_FORM1_CMD_TRACER, Event::Click, &SelectionWindow::cmd_tracer_Click},
    {IDC_FORM1_CMD_SORTIE, Event::Click, &SelectionWindow::cmd_sortie_Click},
    {IDC_FORM1_CMD_ANNULER, Event::Click, &SelectionWindow::cmd_annuler_Click},
};
