#pragma once

#include "fakes/fake_automation.h"
#include "fakes/fake_files.h"
#include "fakes/fake_window.h"
#include "storage/program_files.h"
#include "storage/window_places.h"

/// A whole machine in memory.
struct FakePlatform {
    FakeAutomation automation;
    FakeSettings settings;
    FakeFiles files;
    FakeMessageBoxes boxes;
    FakeFileDialogs fileDialogs;
    FakeDesktop desktop;
    FakeRecordFiles records;
    FakeListHolds listHolds;
    FakeClock clock;
    FakePower power;
    FakeWindowFactory windows;
    FakeWorkers workers;
    FakeSearchWatch watch;
    SearchServices search{files, workers, watch};
    Platform platform{automation,  settings, files, records, listHolds, clock,          boxes,
                      fileDialogs, desktop,  power, windows, search,    L"c:\\tarnwick"};

    FakePlatform() {
        automation.fileExists = [this](const auto& path) { return files.texts.contains(path); };
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

    /// Has a search ask once whether it goes on, when it has read a directory: the next one does
    /// not answer.
    void serveAfter(const std::wstring& directory, const std::function<bool()>& goesOn) {
        files.beforeEach = [=, this](const std::wstring& path) {
            if (path == directory) workers.hang = true;
        };
        watch.goesOn = [=, this] { return !std::exchange(workers.hang, false) || goesOn(); };
    }

    /// From now on no directory answers; Escape is pressed while one is waited for, and each time
    /// this is done.
    void hangUntilEscape(const std::function<void()>& deed = [] {}) {
        workers.hang = true;
        watch.goesOn = [this, deed] {
            deed();
            return watch.stop();
        };
    }

    FakeWindow& window(int dialogId) { return *windows.made.at(dialogId); }
};
