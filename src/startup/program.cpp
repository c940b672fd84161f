#include "startup/program.h"

#include "tracking/form3.h"

Program::Program(const Platform& platform) : platform_(platform) {}

Program::~Program() = default;

void Program::ChargerForm1() {}

void Program::ChargerForm2() { ChargerForm3(); }

void Program::ChargerForm3() {
    form3_ = std::make_unique<Form3>(module_, platform_);
    form3_->Form_Load();
    form3_->window().show();
}

void Program::ChargerForm4() {}

void Program::ChargerAPropos() {}

void Program::FermerAPropos() {}
