#pragma once

class Control;

// The number of leading directory levels that a window hides, kept as the caption of a label.

/// Hides one level more, up to 9. True when the list must be redrawn.
bool hideOneLevelMore(Control& depth);

/// Hides one level less, down to 0. True when the list must be redrawn.
bool hideOneLevelLess(Control& depth);
