#pragma once

#include "resume/existing_list_ids.h"
#include "resume/existing_list_window.h"

/// Which handler each event of the existing-list prompt goes to.
inline constexpr Binding<ExistingListWindow> kExistingListBindings[] = {
    {kTheWindow, Event::Close, &ExistingListWindow::Form_Close},
    {kEscapeKey, Event::Click, &ExistingListWindow::Form_Close},
    {IDC_FORM2_CMDOK, Event::Click, &ExistingListWindow::CmdOK_Click, Presses::Single},
    {IDC_FORM2_CMDANNULE, Event::Click, &ExistingListWindow::CmdAnnule_Click, Presses::Single},
    {IDC_FORM2_CMDEFFACER, Event::Click, &ExistingListWindow::CmdEffacer_Click, Presses::Single},
};

inline constexpr Tooltip kExistingListTooltips[] = {
    {IDC_FORM2_CMDEFFACER, L"Effacer le fichier LISTE existant."},
};

inline constexpr WindowTemplate kExistingListWindow = {
    .dialogId = IDD_FORM2,
    .tooltips = kExistingListTooltips,
    .headingId = IDC_FORM2_LABEL1,
};
