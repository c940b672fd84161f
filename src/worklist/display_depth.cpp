#include "worklist/display_depth.h"

#include "common/numbers.h"
#include "ports/controls.h"

bool DisplayDepth::hideOneMore() { return set(levels_ + 1); }

bool DisplayDepth::hideOneLess() { return set(levels_ - 1); }

bool DisplayDepth::set(int levels) {
    constexpr int kDeepest = 9;
    if (levels < 0 || levels > kDeepest) return false;
    levels_ = levels;
    label_.setText(decimal(levels));
    return true;
}
