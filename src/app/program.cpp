#include "app/program.h"

#include "about/about_window.h"
#include "resume/existing_list_window.h"
#include "searchfolders/configuration_window.h"
#include "selection/selection_window.h"
#include "tracking/tracking_window.h"

Program::Program(const Platform& platform) : platform_(platform) {}

Program::~Program() = default;

void Program::ChargerForm1() {
    form1_ = std::make_unique<Form1>(module_, platform_, *this);
    form1_->Form_Load();
    form1_->window().show();
}

void Program::ChargerForm2() {
    form2_ = std::make_unique<Form2>(module_, platform_, *this);
    form2_->Form_Load();
    FermerAPropos();
    form2_->window().show();
}

void Program::ChargerForm3() {
    form3_ = std::make_unique<Form3>(module_, platform_);
    form3_->Form_Load();
    form3_->window().show();
}

void Program::ChargerForm4() {
    if (!form4_ || !form4_->isOpen()) {
        form4_ = std::make_unique<Form4>(module_, platform_);
        form4_->Form_Load();
    }
    form4_->window().show();
}

void Program::ChargerAPropos() {
    if (!about_ || !about_->isOpen()) about_ = std::make_unique<AboutWindow>(module_, platform_);
    about_->show();
}

void Program::FermerAPropos() {
    if (about_ && about_->isOpen()) about_->close();
}
