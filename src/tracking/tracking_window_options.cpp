// What the tracking window's system menu offers: how the pass behaves, and the report.

#include <algorithm>

#include "cad/cad_session.h"
#include "common/text.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "storage/program_files.h"
#include "storage/settings.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_texts.h"
#include "tracking/tracking_window.h"

namespace {

struct PassOption {
    int itemId;
    const SwitchSetting& setting;
    bool PassOptions::*value;
};

constexpr PassOption kPassOptions[] = {
    {IDM_FORM3_PASSERREFUS, setting::kPassRefused, &PassOptions::passesRefused},
    {IDM_FORM3_GARDERNONSAUVE, setting::kKeepUnsaved, &PassOptions::keepsUnsaved},
    {IDM_FORM3_LAISSEROUVERTS, setting::kLeaveUsers, &PassOptions::leavesUsers},
    {IDM_FORM3_REFERENCES, setting::kWorkThere, &PassOptions::worksThere},
};

const PassOption& passOption(int itemId) {
    return *std::ranges::find(kPassOptions, itemId, &PassOption::itemId);
}

}  // namespace

void TrackingWindow::takeOptions() {
    Settings& settings = platform_.settings;
    if (valueOf(settings, setting::kAlwaysVisible)) setAlwaysVisible(true);
    if (valueOf(settings, setting::kAllReleases)) setAllReleases(true);
    if (valueOf(settings, setting::kHotKeys)) setHotKeys(true);
    for (const PassOption& option : kPassOptions) {
        if (valueOf(settings, option.setting)) setPassOption(option.itemId, true);
    }
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

void TrackingWindow::PasserRefus_Click() { togglePassOption(IDM_FORM3_PASSERREFUS); }
void TrackingWindow::GarderNonSauve_Click() { togglePassOption(IDM_FORM3_GARDERNONSAUVE); }
void TrackingWindow::LaisserOuverts_Click() { togglePassOption(IDM_FORM3_LAISSEROUVERTS); }
void TrackingWindow::References_Click() { togglePassOption(IDM_FORM3_REFERENCES); }

void TrackingWindow::togglePassOption(int itemId) {
    const PassOption& option = passOption(itemId);
    const bool on = !(runner_.options().*option.value);
    setPassOption(itemId, on);
    setValue(platform_.settings, option.setting, on);
}

void TrackingWindow::setPassOption(int itemId, bool on) {
    PassOptions options = runner_.options();
    options.*passOption(itemId).value = on;
    runner_.setOptions(options);
    window_->setMenuItemChecked(itemId, on);
}

void TrackingWindow::setAlwaysVisible(bool on) {
    alwaysVisible_ = on;
    window_->setTopmost(on);
    window_->setMenuItemChecked(IDM_FORM3_TOUJOURSVISIBLE, on);
}

void TrackingWindow::setAllReleases(bool on) {
    allReleases_ = on;
    cad_.expectAnyRelease(on);
    window_->setMenuItemChecked(IDM_FORM3_PREMIERPLAN, on);
}

void TrackingWindow::setHotKeys(bool on) {
    if (on) {
        const auto taken = window_->takeHotKeys();
        if (!taken.empty()) {
            platform_.messageBoxes.warn(takenKeysText(taken));
            return;
        }
    } else {
        window_->releaseHotKeys();
    }
    hotKeys_ = on;
    window_->setMenuItemChecked(IDM_FORM3_TOUCHES, on);
}

// The pass goes on, whatever becomes of the report.
void TrackingWindow::Rapport_Click() {
    try {
        const auto path = platform_.fileDialogs.askWhereToSave(reportQuestion(files_.list));
        if (path) writeReport(*path);
    } catch (const RuntimeError& error) {
        platform_.messageBoxes.warn(reportNotWrittenText(error.text));
    }
}

void TrackingWindow::writeReport(const std::wstring& path) {
    if (files_.owns(path)) throw errors::permissionDenied(path);
    platform_.files.replace(path, [&](const ByteSink& file) { file(runner_.report()); });
}
