#pragma once

#include <string>

class Desktop;
class Files;
class MessageBoxes;

/// Has the system's browser show the guide, a page beside the program; tells the user when it
/// can't. A page that isn't there is not asked for: Windows would start a program of that name
/// ("guide.html.exe") in its place.
void showGuide(Files& files, Desktop& desktop, MessageBoxes& boxes,
               const std::wstring& programDirectory);
