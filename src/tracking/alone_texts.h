#pragma once

#include "ports/dialogs.h"
#include "tracking/pass_runner.h"

/// Whether to save and close so many documents.
MessageBoxContent aloneQuestion(int documents);
MessageBoxContent aloneEndBox(const AloneOutcome& outcome);
