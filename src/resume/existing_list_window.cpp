#include "resume/existing_list_window.h"

#include "app/module1.h"
#include "common/runtime_error.h"
#include "platform/automation.h"
#include "platform/platform.h"
#include "resume/existing_list_tables.h"
#include "session/navigation.h"
#include "session/window_places.h"

ExistingListWindow::ExistingListWindow(Module1& module, Platform& platform, Navigation& navigation)
    : module_(module),
      platform_(platform),
      navigation_(navigation),
      window_(
          platform.windows.create({IDD_FORM2, kExistingListTooltips, IDC_FORM2_LABEL1}, *this)) {}

void ExistingListWindow::raise(int controlId, Event event) {
    dispatch<ExistingListWindow>(*this, kExistingListBindings, controlId, event);
}

void ExistingListWindow::Form_Load() {
    const WindowPlace& place = module_.place(PlacedWindow::ExistingList);
    window_->moveTo(place.top, place.left);
}

void ExistingListWindow::Form_Close() { throw ProgramEnd{}; }

void ExistingListWindow::CmdOK_Click() {
    Quitter(true);
    navigation_.ChargerForm3();
}

void ExistingListWindow::CmdAnnule_Click() {
    Quitter(false);
    navigation_.ChargerForm1();
}

void ExistingListWindow::CmdEffacer_Click() {
    const ObjectPtr fileSystem = platform_.automation.create(L"Scripting.FileSystemObject");
    // Not GetFile and its Delete: Wine lacks the latter.
    callMethod(fileSystem, L"DeleteFile", {module_.FichListe, true});
    CmdAnnule_Click();
}

void ExistingListWindow::Quitter(bool reprendre) {
    savePlace(platform_.settings, PlacedWindow::ExistingList, *window_);
    window_->unload();
    module_.NouvelleListe = !reprendre;
    module_.ReprendreListe = reprendre;
}
