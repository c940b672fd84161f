#pragma once

// The program's icon has the lowest number, so that the Explorer shows it for the file, too.
#define IDI_PROGRAM 1
