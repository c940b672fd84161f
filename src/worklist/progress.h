#pragma once

struct WorkList;

/// How far a pass has come: the lines no longer to do, of all.
struct PassProgress {
    int done = 0;
    int total = 0;
    bool operator==(const PassProgress&) const = default;
};

/// 0 of 0 when no line is in progress: the pass has not begun or has reached its end.
PassProgress passProgress(const WorkList& list);
