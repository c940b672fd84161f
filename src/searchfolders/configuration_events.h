#pragma once

#include "searchfolders/configuration_ids.h"
#include "searchfolders/configuration_window.h"

/// Which handler each event of the configuration window goes to.
inline constexpr Binding<ConfigurationWindow> kConfigurationBindings[] = {
    {kTheWindow, Event::Close, &ConfigurationWindow::Form_Close},
    {IDC_FORM4_TABSTRIP1, Event::Click, &ConfigurationWindow::TabStrip1_Click},
    {IDC_FORM4_LIST1, Event::Click, &ConfigurationWindow::List1_Click},
    {IDC_FORM4_CMDCREER, Event::Click, &ConfigurationWindow::CmdCreer_Click},
    {IDC_FORM4_CMDMODIFIER, Event::Click, &ConfigurationWindow::CmdModifier_Click},
    {IDC_FORM4_CMDRENOMMER, Event::Click, &ConfigurationWindow::CmdRenommer_Click},
    {IDC_FORM4_CMDDETRUIRE, Event::Click, &ConfigurationWindow::CmdDetruire_Click},
    {IDC_FORM4_CMDENREGISTER, Event::Click, &ConfigurationWindow::CmdEnregister_Click},
    {IDC_FORM4_CMDCHOISIR, Event::Click, &ConfigurationWindow::CmdChoisir_Click},
    {IDC_FORM4_CMDANNULER, Event::Click, &ConfigurationWindow::CmdAnnuler_Click},
    {IDC_FORM4_DRIVE1, Event::Click, &ConfigurationWindow::Drive1_Change},
    {IDC_FORM4_DIR1, Event::DoubleClick, &ConfigurationWindow::Dir1_DblClick},
    {IDC_FORM4_CMDAJO1, Event::Click, &ConfigurationWindow::CmdAjo1_Click},
    {IDC_FORM4_CMDAJO2, Event::Click, &ConfigurationWindow::CmdAjo2_Click},
    {IDC_FORM4_CMDRETIR1, Event::Click, &ConfigurationWindow::CmdRetir1_Click},
    {IDC_FORM4_CMDRETIR2, Event::Click, &ConfigurationWindow::CmdRetir2_Click},
    {IDC_FORM4_CMDPLUS1, Event::Click, &ConfigurationWindow::CmdPlus1_Click},
    {IDC_FORM4_CMDMOINS1, Event::Click, &ConfigurationWindow::CmdMoins1_Click},
    {IDC_FORM4_CMDVALIDER, Event::Click, &ConfigurationWindow::CmdValider_Click},
    {IDC_FORM4_CMDANNULER1, Event::Click, &ConfigurationWindow::CmdAnnuler1_Click},
};
