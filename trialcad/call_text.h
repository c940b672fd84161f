#pragma once

#include <string>

#include "call.h"

/// The arguments as the journal writes them, comma-separated and without the parentheses.
std::wstring argumentsText(const Call& call);
