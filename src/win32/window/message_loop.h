#pragma once

/// Serves the program's windows until the program ends. Gives the exit code.
int runMessageLoop();
