#pragma once

// The lowest number, so that the Explorer shows this icon for the file, too.
#define IDI_PROGRAM 1
