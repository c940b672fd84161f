#include "resume/existing_list_window.h"

#include "app/module1.h"
#include "common/runtime_error.h"
#include "platform/automation.h"
#include "platform/platform.h"
#include "resume/existing_list_tables.h"
#include "session/navigation.h"
#include "session/window_places.h"

Form2::Form2(Module1& module, Platform& platform, Navigation& navigation)
    : module_(module),
      platform_(platform),
      navigation_(navigation),
      window_(platform.windows.create({IDD_FORM2, kForm2Tooltips, IDC_FORM2_LABEL1}, *this)) {}

void Form2::raise(int controlId, Event event) {
    dispatch<Form2>(*this, kForm2Bindings, controlId, event);
}

void Form2::Form_Load() {
    const WindowPlace& place = module_.place(PlacedWindow::Form2);
    window_->moveTo(place.top, place.left);
}

void Form2::Form_Close() { throw ProgramEnd{}; }

void Form2::CmdOK_Click() {
    Quitter(true);
    navigation_.ChargerForm3();
}

void Form2::CmdAnnule_Click() {
    Quitter(false);
    navigation_.ChargerForm1();
}

void Form2::CmdEffacer_Click() {
    const ObjectPtr fileSystem = platform_.automation.create(L"Scripting.FileSystemObject");
    // Not GetFile and its Delete: Wine lacks the latter.
    callMethod(fileSystem, L"DeleteFile", {module_.FichListe, true});
    CmdAnnule_Click();
}

void Form2::Quitter(bool reprendre) {
    savePlace(platform_.settings, PlacedWindow::Form2, *window_);
    window_->unload();
    module_.NouvelleListe = !reprendre;
    module_.ReprendreListe = reprendre;
}
