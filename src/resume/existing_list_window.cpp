#include "resume/existing_list_window.h"

#include "common/runtime_error.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "resume/existing_list_tables.h"
#include "storage/program_files.h"
#include "storage/saving.h"
#include "storage/window_places.h"

ExistingListWindow::ExistingListWindow(Platform& platform, WindowPlaces& places,
                                       const ProgramFiles& files, ExistingListExits& exits)
    : ProgramWindow(platform.windows, kExistingListWindow, kExistingListBindings),
      platform_(platform),
      places_(places),
      files_(files),
      exits_(exits) {}

void ExistingListWindow::Form_Load() { places_.restore(PlacedWindow::ExistingList, *window_); }

void ExistingListWindow::Form_Close() { throw ProgramEnd{}; }

void ExistingListWindow::CmdOK_Click() {
    leave();
    exits_.resumePass();
}

void ExistingListWindow::CmdAnnule_Click() {
    leave();
    exits_.declineList();
}

void ExistingListWindow::CmdEffacer_Click() {
    const auto erase = [&] { platform_.files.remove(files_.list); };
    if (replaceList(platform_, files_, erase)) CmdAnnule_Click();
}

void ExistingListWindow::leave() {
    places_.save(PlacedWindow::ExistingList, *window_);
    window_->unload();
}
