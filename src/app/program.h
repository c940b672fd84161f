#pragma once

#include <memory>
#include <optional>
#include <string>

#include "about/about_window.h"
#include "cad/cad_session.h"
#include "ports/machine.h"
#include "resume/existing_list_window.h"
#include "searchfolders/configuration_window.h"
#include "selection/selection_window.h"
#include "storage/program_files.h"
#include "storage/window_places.h"
#include "tracking/tracking_window.h"

class Desktop;
class Files;
class MessageBoxes;

/// The program: what lives as long as it does, its windows, and the way from one to the next.
class Program : public ExistingListExits, public SelectionExits {
 public:
    explicit Program(const Platform& platform);

    /// Start-up, before any window of its own: ends with the first window shown, or with the
    /// program's end when no CAD session runs or this user's program has the list open already.
    /// Raises 70 when someone else has it open.
    void start();

    /// Whether a pass runs all of whose marks will be offered at the next start.
    bool keepsMarks() const { return tracking_ && tracking_->keepsMarks(); }

 private:
    void attachToCad();
    void showExistingList();
    void showSelection();
    void showTracking(TrackingWindow::Origin origin);

    void resumePass() override;
    void declineList() override;
    void closeSplash() override;
    void launchPass() override;
    void showConfigurations() override;
    void showAbout() override;

    Platform platform_;
    ProgramFiles files_;
    WindowPlaces places_;
    CadSession cad_;
    std::optional<FileSystemObject> fileSystem_;
    Configurations configurations_;
    bool listDeclined_ = false;  ///< an old list was there, and the user went past it

    std::unique_ptr<AboutWindow> about_;
    std::unique_ptr<ExistingListWindow> existingList_;
    std::unique_ptr<SelectionWindow> selection_;
    std::unique_ptr<TrackingWindow> tracking_;
    std::unique_ptr<ConfigurationWindow> configuration_;
};

/// Has the system's browser show the guide, a page beside the program; tells the user when it
/// can't. A page that isn't there is not asked for: Windows would start a program of that name
/// ("guide.html.exe") in its place.
void showGuide(Files& files, Desktop& desktop, MessageBoxes& boxes,
               const std::wstring& programDirectory);
