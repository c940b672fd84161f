#include "resume/existing_list_window.h"

#include "common/runtime_error.h"
#include "platform/file_system_object.h"
#include "resume/existing_list_tables.h"
#include "session/program_files.h"
#include "session/window_places.h"

ExistingListWindow::ExistingListWindow(WindowFactory& windows, WindowPlaces& places,
                                       FileSystemObject& fileSystem, const ProgramFiles& files,
                                       ExistingListExits& exits)
    : ProgramWindow(windows, kExistingListWindow, kExistingListBindings),
      places_(places),
      fileSystem_(fileSystem),
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
    fileSystem_.deleteFile(files_.list);
    CmdAnnule_Click();
}

void ExistingListWindow::leave() {
    places_.save(PlacedWindow::ExistingList, *window_);
    window_->unload();
}
