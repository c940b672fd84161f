#pragma once

#include <string>

class Desktop;
class MessageBoxes;

/// Has the system's browser show the guide, a page beside the program; tells the user when it
/// can't.
void showGuide(Desktop& desktop, MessageBoxes& boxes, const std::wstring& programDirectory);
