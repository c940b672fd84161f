#pragma once

#include <string>

#include "ports/message_boxes.h"

/// What became of the documents of one going alone, and why it ended.
struct AloneOutcome {
    enum class End { Finished, Stopped, FiveRefusals, ShortOfGdiObjects };

    int saved = 0;
    int notOpened = 0;
    int notSaved = 0;
    End end = End::Finished;
};

/// Whether to save and close so many documents.
MessageBoxContent aloneQuestion(int documents);
MessageBoxContent aloneEndBox(const AloneOutcome& outcome);
