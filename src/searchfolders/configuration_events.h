#pragma once

#include "searchfolders/configuration_ids.h"
#include "searchfolders/configuration_window.h"

/// Which handler each event of the configuration window goes to.
inline constexpr Binding<Form4> kForm4Bindings[] = {
    {kTheWindow, Event::Close, &Form4::Form_Close},
    {IDC_FORM4_TABSTRIP1, Event::Click, &Form4::TabStrip1_Click},
    {IDC_FORM4_LIST1, Event::Click, &Form4::List1_Click},
    {IDC_FORM4_CMDCREER, Event::Click, &Form4::CmdCreer_Click},
    {IDC_FORM4_CMDMODIFIER, Event::Click, &Form4::CmdModifier_Click},
    {IDC_FORM4_CMDRENOMMER, Event::Click, &Form4::CmdRenommer_Click},
    {IDC_FORM4_CMDDETRUIRE, Event::Click, &Form4::CmdDetruire_Click},
    {IDC_FORM4_CMDENREGISTER, Event::Click, &Form4::CmdEnregister_Click},
    {IDC_FORM4_CMDCHOISIR, Event::Click, &Form4::CmdChoisir_Click},
    {IDC_FORM4_CMDANNULER, Event::Click, &Form4::CmdAnnuler_Click},
    {IDC_FORM4_DRIVE1, Event::Click, &Form4::Drive1_Change},
    {IDC_FORM4_DIR1, Event::DoubleClick, &Form4::Dir1_DblClick},
    {IDC_FORM4_CMDAJO1, Event::Click, &Form4::CmdAjo1_Click},
    {IDC_FORM4_CMDAJO2, Event::Click, &Form4::CmdAjo2_Click},
    {IDC_FORM4_CMDRETIR1, Event::Click, &Form4::CmdRetir1_Click},
    {IDC_FORM4_CMDRETIR2, Event::Click, &Form4::CmdRetir2_Click},
    {IDC_FORM4_CMDPLUS1, Event::Click, &Form4::CmdPlus1_Click},
    {IDC_FORM4_CMDMOINS1, Event::Click, &Form4::CmdMoins1_Click},
    {IDC_FORM4_CMDVALIDER, Event::Click, &Form4::CmdValider_Click},
    {IDC_FORM4_CMDANNULER1, Event::Click, &Form4::CmdAnnuler1_Click},
};
