#pragma once

struct RuntimeError;

/// Tells the user why the program ends, in one modal box.
void showFatalError(const RuntimeError& error);
