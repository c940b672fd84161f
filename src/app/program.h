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

/// The program: its windows, the way from one to the next, and all that lasts as long as it runs.
class Program : public ExistingListExits, public SelectionExits {
 public:
    explicit Program(const Platform& platform);

    /// Starts up and shows the first window. Ends the program when no CAD session runs, or when a
    /// program of this user has the list open already. Raises 70 when someone else has it open.
    void start();

    /// Whether a pass is running and all its marks will be offered at the next start.
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
    bool listDeclined_ = false;  ///< the user didn't want to use the existing list

    std::unique_ptr<AboutWindow> about_;
    std::unique_ptr<ExistingListWindow> existingList_;
    std::unique_ptr<SelectionWindow> selection_;
    std::unique_ptr<TrackingWindow> tracking_;
    std::unique_ptr<ConfigurationWindow> configuration_;
};

/// Opens the guide, a page beside the program, in the browser; tells the user when that fails. A
/// page that doesn't exist is not opened: Windows might start "guide.html.exe" instead.
void showGuide(Files& files, Desktop& desktop, MessageBoxes& boxes,
               const std::wstring& programDirectory);
