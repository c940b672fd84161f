#pragma once

class Control;

/// The number of leading directory levels that a window hides in the paths of its list, 0 to 9,
/// with the label that shows it between the buttons "-" and "+".
class DisplayDepth {
 public:
    explicit DisplayDepth(Control& label) : label_(label) {}

    int levels() const { return levels_; }
    void reset() { set(0); }

    // Each is true when the list must be redrawn.
    bool hideOneMore();
    bool hideOneLess();

 private:
    bool set(int levels);

    Control& label_;
    int levels_ = 0;
};
