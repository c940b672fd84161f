#pragma once

// The program's icon: the lowest number of all, so that the shell shows it for the file too.
#define IDI_PROGRAM 1
