#pragma once

#include "fakes/fake_automation.h"
#include "fakes/fake_clock.h"
#include "fakes/fake_desktop.h"
#include "fakes/fake_files.h"
#include "fakes/fake_list_holds.h"
#include "fakes/fake_message_boxes.h"
#include "fakes/fake_record_files.h"
#include "fakes/fake_settings.h"
#include "fakes/fake_window.h"
#include "platform/file_system_object.h"
#include "platform/platform.h"
#include "session/program_files.h"
#include "session/window_places.h"

/// A whole machine in memory.
struct FakePlatform {
    FakeAutomation automation;
    FakeSettings settings;
    FakeFiles files;
    FakeMessageBoxes boxes;
    FakeDesktop desktop;
    FakeRecordFiles records;
    FakeListHolds listHolds;
    FakeClock clock;
    FakeWindowFactory windows;
    Platform platform{automation, settings, files,   records, listHolds,
                      clock,      boxes,    desktop, windows, L"c:\\tarnwick"};

    FakePlatform() {
        automation.fileExists = [this](const std::wstring& path) {
            return files.texts.contains(path);
        };
    }

    const ProgramFiles programFiles{L"c:\\tarnwick", L"c:\\tarnwick\\tarnwick.lst",
                                    L"c:\\tarnwick\\tarnwick.cfg"};
    WindowPlaces places{settings};

    /// Has a window left at a place, in twips.
    void leaveWindowAt(const wchar_t* topKey, const wchar_t* leftKey, int top, int left) {
        settings.write(L"tarnwick", L"startup", topKey, std::to_wstring(top));
        settings.write(L"tarnwick", L"startup", leftKey, std::to_wstring(left));
        places.readAll();
        settings.entries.clear();
    }

    FakeWindow& window(int dialogId) { return *windows.made.at(dialogId); }
};
