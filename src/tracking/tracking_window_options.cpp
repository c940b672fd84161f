// What the tracking window's system menu offers: how the pass is led while the CAD application is
// in front, and the report.

#include "cad/cad_session.h"
#include "common/text.h"
#include "ports/file_dialogs.h"
#include "ports/files.h"
#include "ports/platform.h"
#include "session/program_files.h"
#include "session/setting_values.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_texts.h"
#include "tracking/tracking_window.h"

void TrackingWindow::takeOptions() {
    Settings& settings = platform_.settings;
    if (valueOf(settings, setting::kAlwaysVisible)) setAlwaysVisible(true);
    if (valueOf(settings, setting::kAllReleases)) setAllReleases(true);
    if (valueOf(settings, setting::kHotKeys)) setHotKeys(true);
}

void TrackingWindow::ToujoursVisible_Click() {
    setAlwaysVisible(!alwaysVisible_);
    setValue(platform_.settings, setting::kAlwaysVisible, alwaysVisible_);
}

void TrackingWindow::Touches_Click() {
    const bool before = hotKeys_;
    setHotKeys(!before);
    if (hotKeys_ != before) setValue(platform_.settings, setting::kHotKeys, hotKeys_);
}

void TrackingWindow::PremierPlan_Click() {
    setAllReleases(!allReleases_);
    setValue(platform_.settings, setting::kAllReleases, allReleases_);
}

void TrackingWindow::setAlwaysVisible(bool on) {
    alwaysVisible_ = on;
    window_->setTopmost(on);
    window_->setMenuMark(IDM_FORM3_TOUJOURSVISIBLE, on);
}

void TrackingWindow::setAllReleases(bool on) {
    allReleases_ = on;
    cad_.expectAnyRelease(on);
    window_->setMenuMark(IDM_FORM3_PREMIERPLAN, on);
}

void TrackingWindow::setHotKeys(bool on) {
    if (on) {
        const auto taken = window_->takeHotKeys();
        if (!taken.empty()) {
            platform_.messageBoxes.show(takenKeysBox(taken));
            return;
        }
    } else {
        window_->releaseHotKeys();
    }
    hotKeys_ = on;
    window_->setMenuMark(IDM_FORM3_TOUCHES, on);
}

// The pass goes on, whatever becomes of the report.
void TrackingWindow::Rapport_Click() {
    try {
        const auto path = platform_.fileDialogs.askWhereToSave(reportQuestion(files_.list));
        if (path) writeReport(*path);
    } catch (const RuntimeError& error) {
        platform_.messageBoxes.show(reportNotWrittenBox(error.text));
    }
}

void TrackingWindow::writeReport(const std::wstring& path) {
    if (files_.owns(path)) throw errors::permissionDenied(path);
    platform_.files.replace(path, [&](const ByteSink& file) { file(runner_.report()); });
}
