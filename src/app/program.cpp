#include "app/program.h"

#include "about/about_window.h"
#include "resume/existing_list_window.h"
#include "searchfolders/configuration_window.h"
#include "selection/selection_window.h"
#include "tracking/tracking_window.h"

Program::Program(const Platform& platform) : platform_(platform) {}

Program::~Program() = default;

void Program::ChargerForm1() {
    selection_ = std::make_unique<SelectionWindow>(module_, platform_, *this);
    selection_->Form_Load();
    selection_->window().show();
}

void Program::ChargerForm2() {
    existingList_ = std::make_unique<ExistingListWindow>(module_, platform_, *this);
    existingList_->Form_Load();
    FermerAPropos();
    existingList_->window().show();
}

void Program::ChargerForm3() {
    tracking_ = std::make_unique<TrackingWindow>(module_, platform_);
    tracking_->Form_Load();
    tracking_->window().show();
}

void Program::ChargerForm4() {
    if (!configuration_ || !configuration_->isOpen()) {
        configuration_ = std::make_unique<ConfigurationWindow>(module_, platform_);
        configuration_->Form_Load();
    }
    configuration_->window().show();
}

void Program::ChargerAPropos() {
    if (!about_ || !about_->isOpen()) about_ = std::make_unique<AboutWindow>(module_, platform_);
    about_->show();
}

void Program::FermerAPropos() {
    if (about_ && about_->isOpen()) about_->close();
}
