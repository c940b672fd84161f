#pragma once

#include <string>

struct Platform;

/// The list file to work on: the one that the command line names (a list dropped on the program's
/// icon comes so, too), else the program's own. Raises 5 for anything but a list file, and for more
/// than one name.
std::wstring listToWorkOn(const Platform& platform);
