#pragma once

#include "demo/stage.h"

// The acts of the demonstration, in order.
namespace driver::demo {

/// Prepares a pass in the selection window and launches it.
void playSelectionWindow(Stage& stage);

/// Builds a configuration of search folders and makes it effective, while the selection window is
/// open.
void playSearchFolders(Stage& stage);

/// Works through the launched pass with each of the tracking window's commands, saves the list and
/// leaves.
void playTrackingWindow(Stage& stage);

/// Starts again and accepts the list file that the pass left.
void playResuming(Stage& stage);

/// What the session has to be told for playRefusals: the text of its file of documents.
std::string documentsThatSayNo();

/// Works through another list, with documents that do not open or are not saved.
void playRefusals(Stage& stage);

/// Lets a pass of ten documents go on alone, in a session of its own that refuses to open one of
/// them and to save another.
void playAlone(Stage& stage);

}  // namespace driver::demo
