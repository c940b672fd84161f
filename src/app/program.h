#pragma once

#include <memory>

#include "app/module1.h"
#include "platform/platform.h"
#include "session/navigation.h"

class AboutWindow;
class SelectionWindow;
class ExistingListWindow;
class TrackingWindow;
class ConfigurationWindow;

/// The program: its variables, its windows, and the way from one to the next.
class Program : public Navigation {
 public:
    explicit Program(const Platform& platform);
    ~Program() override;

    /// Start-up, before any window of its own: ends with the first window shown, or with the
    /// program's end when no CAD session runs.
    void Main();

    void ChargerForm1() override;
    void ChargerForm2() override;
    void ChargerForm3() override;
    void ChargerForm4() override;
    void ChargerAPropos() override;
    void FermerAPropos() override;

 private:
    void attachToCad();
    void readPlaces();

    Platform platform_;
    Module1 module_;
    std::unique_ptr<AboutWindow> about_;
    std::unique_ptr<SelectionWindow> selection_;
    std::unique_ptr<ExistingListWindow> existingList_;
    std::unique_ptr<TrackingWindow> tracking_;
    std::unique_ptr<ConfigurationWindow> configuration_;
};
