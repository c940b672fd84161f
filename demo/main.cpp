// tarnwick-demo.exe DIRECTORY [--scripted]: shows the program at work in this directory, for a
// person to use, or played by a script.

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

void startCad(Stage& stage, const std::vector<std::string>& options = {}) {
    stage.tell("Starting the trial CAD session");
    std::vector<std::string> all{"--working-directory", utf8(stage.sandbox.documents().wstring())};
    all.insert(all.end(), options.begin(), options.end());
    stage.cad.start(all);
}

void playScript(const std::filesystem::path& directory) {
    const Settings settings;
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));  // no tooltips
    Stage stage(directory);
    const std::filesystem::path script = stage.sandbox.directory() / "documents.txt";
    writeFileBytes(script, documentsThatSayNo());
    startCad(stage, {"--documents", utf8(script.wstring())});
    playSelectionWindow(stage);
    playTrackingWindow(stage);
    playResuming(stage);
    playRefusals(stage);
    stage.tell("The list file at the end");
    stage.showListFile();
    stage.cad.close();
    playAlone(stage);
}

void putAtRightEdge(HWND window) {
    const RECT place = placeOf(window);
    const int left = GetSystemMetrics(SM_CXSCREEN) - (place.right - place.left);
    moveTo(window, std::max(left, 0), 0);
}

void openForAPerson(const std::filesystem::path& directory) {
    Stage stage(directory);
    startCad(stage);
    putAtRightEdge(stage.cad.window());
    stage.tell("Starting Tarnwick; close it to end");
    stage.app.start();
    stage.app.waitUntilClosed();
    stage.cad.close();
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
        scripted ? playScript(directory) : openForAPerson(directory);
    } catch (const std::exception& error) {
        std::cerr << "\n" << error.what() << "\n";
        return 1;
    }
    return 0;
}
