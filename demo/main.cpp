// tarnwick-demo.exe DIRECTORY [--scripted]: shows the program at work in this directory, for a
// person to use or played by a script.

#include <windows.h>

#include <algorithm>
#include <exception>
#include <iostream>
#include <string_view>

#include "demo/stage.h"
#include "demo/steps.h"
#include "driver/settings.h"
#include "driver/text.h"
#include "driver/winapi.h"

namespace driver::demo {
namespace {

void StartCad(Stage& stage) {
    stage.Tell("Starting the trial CAD session");
    stage.cad.Start({"--working-directory", Utf8(stage.sandbox.Documents().wstring())});
}

void PlayScript(const std::filesystem::path& directory) {
    const Settings settings;
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));  // no tooltips
    Stage stage(directory);
    StartCad(stage);
    PlaySelectionWindow(stage);
    PlayTrackingWindow(stage);
    PlayResuming(stage);
    stage.Tell("The list file at the end");
    stage.ShowListFile();
    stage.cad.Close();
}

void PutAtRightEdge(HWND window) {
    const RECT place = PlaceOf(window);
    const int left = GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left);
    MoveTo(window, std::max(left, 0), 0);
}

void OpenForAPerson(const std::filesystem::path& directory) {
    Stage stage(directory);
    StartCad(stage);
    PutAtRightEdge(stage.cad.Window());
    stage.Tell("Starting Tarnwick; close it to end");
    stage.app.Start();
    stage.app.WaitUntilClosed();
    stage.cad.Close();
}

}  // namespace
}  // namespace driver::demo

int wmain(int count, wchar_t** arguments) {
    using namespace driver::demo;
    if (count < 2) {
        std::cerr << "usage: tarnwick-demo DIRECTORY [--scripted]\n";
        return 2;
    }
    const std::filesystem::path directory = std::filesystem::absolute(arguments[1]);
    const bool scripted = count > 2 && std::wstring_view(arguments[2]) == L"--scripted";
    try {
        scripted ? PlayScript(directory) : OpenForAPerson(directory);
    } catch (const std::exception& error) {
        std::cerr << "\n" << error.what() << "\n";
        return 1;
    }
    return 0;
}
