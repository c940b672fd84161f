#pragma once

#include <string>

class Automation;
class Settings;
class Files;
class MessageBoxes;
class Desktop;
class WindowFactory;

/// All that the program needs from the machine it runs on.
struct Platform {
    Automation& automation;
    Settings& settings;
    Files& files;
    MessageBoxes& messageBoxes;
    Desktop& desktop;
    WindowFactory& windows;
    std::wstring programDirectory;  ///< without a trailing backslash
};
