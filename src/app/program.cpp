#include "app/program.h"

#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"

Program::Program(const Platform& platform)
    : platform_(platform),
      files_{platform.programDirectory, L"", platform.programDirectory + L"\\tarnwick.cfg"},
      places_(platform.settings),
      cad_(platform.desktop) {}

void Program::showExistingList() {
    existingList_ = std::make_unique<ExistingListWindow>(platform_, places_, files_, *this);
    existingList_->Form_Load();
    existingList_->window().show();
    closeSplash();
}

void Program::showSelection() {
    selection_ = std::make_unique<SelectionWindow>(platform_, places_, cad_, files_, *this);
    selection_->Form_Load();
    selection_->window().show();
}

void Program::showTracking(TrackingWindow::Origin origin) {
    tracking_ = std::make_unique<TrackingWindow>(platform_, places_, cad_, files_);
    tracking_->Form_Load(origin);
    tracking_->window().show();
}

void Program::showConfigurations() {
    if (!configuration_ || !configuration_->isOpen()) {
        configuration_ = std::make_unique<ConfigurationWindow>(
            platform_, places_, cad_, *fileSystem_, files_, configurations_);
        configuration_->Form_Load();
    }
    configuration_->window().show();
}

void Program::showAbout() {
    if (!about_ || !about_->isOpen()) about_ = std::make_unique<AboutWindow>(platform_.windows);
    about_->window().show();
}

void Program::closeSplash() {
    if (about_ && about_->isOpen()) about_->close();
}

void Program::resumePass() { showTracking(TrackingWindow::Origin::Resumed); }

void Program::declineList() {
    listDeclined_ = true;
    showSelection();
}

void Program::launchPass() {
    using Origin = TrackingWindow::Origin;
    showTracking(listDeclined_ ? Origin::LaunchedAfterDeclining : Origin::Launched);
}

void showGuide(Files& files, Desktop& desktop, MessageBoxes& boxes,
               const std::wstring& programDirectory) {
    const std::wstring page = programDirectory + L"\\guide.html";
    if (files.kindOrNothing(page) == PathKind::File && desktop.open(page)) return;
    boxes.warn(L"Le guide ne peut pas être ouvert :\r\n" + page);
}
