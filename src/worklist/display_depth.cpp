#include "worklist/display_depth.h"

#include "common/numbers.h"
#include "platform/controls.h"

namespace {

bool change(Control& depth, long step) {
    constexpr long kDeepest = 9;
    const long wanted = numericValue(depth.text()) + step;
    if (wanted < 0 || wanted > kDeepest) return false;
    depth.setText(decimal(wanted));
    return true;
}

}  // namespace

bool hideOneLevelMore(Control& depth) { return change(depth, +1); }

bool hideOneLevelLess(Control& depth) { return change(depth, -1); }
