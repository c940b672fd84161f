#pragma once

#include <string>
#include <vector>

#include "ports/search.h"

class Automation;
class Settings;
class Clock;
class FileDialogs;
class Files;
class ListHolds;
class MessageBoxes;
class Desktop;
class Power;
class RecordFiles;
class WindowFactory;

/// All that the program needs from the machine it runs on.
struct Platform {
    Automation& automation;
    Settings& settings;
    Files& files;
    RecordFiles& records;
    ListHolds& listHolds;
    const Clock& clock;
    MessageBoxes& messageBoxes;
    FileDialogs& fileDialogs;
    Desktop& desktop;
    Power& power;
    WindowFactory& windows;
    SearchServices search;
    std::wstring programDirectory;              ///< without a trailing backslash
    std::vector<std::wstring> namedFiles = {};  ///< on the command line, by their full paths
};
