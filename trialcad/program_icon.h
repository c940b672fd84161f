#pragma once

// The lowest number of all, so that the shell shows the icon for the file too.
#define IDI_PROGRAM 1
