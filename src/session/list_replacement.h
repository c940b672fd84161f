#pragma once

#include <functional>

struct Platform;
struct ProgramFiles;

/// Takes the list file away, or has another take its place, by `replacing`. If it has a line it
/// stays as the previous list, and marks kept of it as the previous list's, in place of older ones.
/// When another program has the previous list open nothing is done: the user is told, and the
/// answer is false. Raises 7, 70, 75, 76 or what `replacing` raises, and then leaves all as it was.
bool replaceList(Platform& platform, const ProgramFiles& files,
                 const std::function<void()>& replacing);
