#pragma once

class Files;
struct ProgramFiles;

/// Keeps the list file, which is about to go, as the previous one, in place of an older. One
/// without a line is not worth it, nor is there anything to keep without a list file.
/// Raises 70, 75 or 76.
void keepPreviousList(Files& files, const ProgramFiles& programFiles);
