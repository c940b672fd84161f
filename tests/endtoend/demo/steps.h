#pragma once

#include "demo/stage.h"

// The acts of the demonstration, in the order they are played.
namespace endtoend::demo {

/// Writes a list file with eight of the sample documents, all to do.
void WriteListOfEightDocuments(const Stage& stage);

/// A pass through eight documents of a list file, with each of the tracking window's commands.
void PlayTrackingWindow(Stage& stage);

/// Starts again on the list file that the pass left.
void PlayResuming(Stage& stage);

}  // namespace endtoend::demo
