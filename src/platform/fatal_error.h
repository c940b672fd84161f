#pragma once

#include <string>

struct RuntimeError;

/// What the user is told when a run-time error ends the program.
std::wstring fatalErrorText(const RuntimeError& error);
