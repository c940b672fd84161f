#pragma once

#include "fakes/fake_automation.h"
#include "fakes/fake_desktop.h"
#include "fakes/fake_files.h"
#include "fakes/fake_message_boxes.h"
#include "fakes/fake_settings.h"
#include "fakes/fake_window.h"
#include "platform/platform.h"

/// A whole machine in memory.
struct FakePlatform {
    FakeAutomation automation;
    FakeSettings settings;
    FakeFiles files;
    FakeMessageBoxes boxes;
    FakeDesktop desktop;
    FakeWindowFactory windows;
    Platform platform{automation, settings, files, boxes, desktop, windows, L"c:\\tarnwick"};

    FakePlatform() {
        automation.fileExists = [this](const std::wstring& path) {
            return files.texts.contains(path);
        };
    }

    FakeWindow& window(int dialogId) { return *windows.made.at(dialogId); }
};
