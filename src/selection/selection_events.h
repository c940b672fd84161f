#pragma once

#include "selection/selection_ids.h"
#include "selection/selection_window.h"

/// Which handler each event of the selection window goes to.
inline constexpr Binding<Form1> kForm1Bindings[] = {
    {kTheWindow, Event::Close, &Form1::Form_Close},
    {IDC_FORM1_UNITE, Event::Click, &Form1::unite_Change},
    {IDC_FORM1_REPERT, Event::Click, &Form1::repert_Click},
    {IDC_FORM1_REPERT, Event::DoubleClick, &Form1::repert_DblClick},
    {IDC_FORM1_TYPEF, Event::Change, &Form1::typef_Change},
    {IDC_FORM1_TYPEF, Event::Click, &Form1::typef_Click},
    {IDC_FORM1_TYPEF, Event::Validate, &Form1::typef_Validate},
    {IDC_FORM1_SOUSREP, Event::Click, &Form1::sousrep_Click},
    {IDC_FORM1_LIST1, Event::Click, &Form1::List1_Click},
    {IDC_FORM1_CMDCOCHE, Event::Click, &Form1::CmdCoche_Click},
    {IDC_FORM1_CMD_INV, Event::Click, &Form1::Cmd_Inv_Click},
    {IDC_FORM1_N_FILTRE, Event::Enter, &Form1::cmd_ajo_Click},
    {IDC_FORM1_CMD_AJO, Event::Click, &Form1::cmd_ajo_Click},
    {IDC_FORM1_CMD_ENL, Event::Click, &Form1::cmd_enl_Click},
    {IDC_FORM1_CMDPLUS, Event::Click, &Form1::CmdPlus_Click},
    {IDC_FORM1_CMDMOINS, Event::Click, &Form1::CmdMoins_Click},
    {IDC_FORM1_CMDAP, Event::Click, &Form1::CmdAP_Click},
    {IDC_FORM1_CMDREPDEF, Event::Click, &Form1::CmdRepDef_Click},
    {IDC_FORM1_CMD_TRACER, Event::Click, &Form1::cmd_tracer_Click},
    {IDC_FORM1_CMD_SORTIE, Event::Click, &Form1::cmd_sortie_Click},
    {IDC_FORM1_CMD_ANNULER, Event::Click, &Form1::cmd_annuler_Click},
};
