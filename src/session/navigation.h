#pragma once

/// The way from one window to another. "Charger" builds the window and shows it.
class Navigation {
 public:
    virtual ~Navigation() = default;
    virtual void ChargerForm1() = 0;
    virtual void ChargerForm2() = 0;
    virtual void ChargerForm3() = 0;
    virtual void ChargerForm4() = 0;
    virtual void ChargerAPropos() = 0;
    virtual void FermerAPropos() = 0;
};
