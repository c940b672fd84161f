#include "shown_selection.h"

#include "selection/selection_ids.h"

ShownSelection::ShownSelection(const std::filesystem::path& directory, bool withSubdirectories)
    : stage_(directory.wstring()) {
    form_ = std::make_unique<SelectionWindow>(stage_.platform, stage_.places, stage_.cad,
                                              stage_.files, stage_.exits);
    form_->Form_Load();
    Window& window = form_->window();
    window.show();
    window.comboBox(IDC_FORM1_TYPEF).setText(L"*.SLDPRT ; *.SLDASM ; *.SLDDRW");
    window.checkBox(IDC_FORM1_SOUSREP).setChecked(withSubdirectories);
    form_->sousrep_Click();
}

int ShownSelection::lineCount() { return form_->window().listBox(IDC_FORM1_LIST1).count(); }
