#pragma once

#include "resume/existing_list_ids.h"
#include "resume/existing_list_window.h"

/// Which handler each event of the existing-list prompt goes to.
inline constexpr Binding<Form2> kForm2Bindings[] = {
    {kTheWindow, Event::Close, &Form2::Form_Close},
    {kEscapeKey, Event::Click, &Form2::Form_Close},
    {IDC_FORM2_CMDOK, Event::Click, &Form2::CmdOK_Click},
    {IDC_FORM2_CMDANNULE, Event::Click, &Form2::CmdAnnule_Click},
    {IDC_FORM2_CMDEFFACER, Event::Click, &Form2::CmdEffacer_Click},
};

inline constexpr Tooltip kForm2Tooltips[] = {
    {IDC_FORM2_CMDEFFACER, L"Effacer le fichier LISTE existant."},
};
