#include "input/drop_down.h"

#include "input/notifications.h"

DropDown::Step DropDown::notified(unsigned code, bool isDown) {
    switch (code) {
        case notification::kComboListShown:
            changed_ = cancelled_ = false;
            return Step::Remember;
        case notification::kComboSelectionChanged:
            return selectionChanged(isDown);
        case notification::kComboTextEdited:
            // Told already, and not to be taken back.
            changed_ = false;
            return isDown ? Step::Remember : Step::Nothing;
        case notification::kComboChoiceCancelled:
            cancelled_ = true;
            return Step::Nothing;
        case notification::kComboListClosed:
            return closedUp();
        default:
            return Step::Nothing;
    }
}

DropDown::Step DropDown::selectionChanged(bool isDown) {
    changed_ = isDown;
    return isDown ? Step::Nothing : Step::Act;
}

DropDown::Step DropDown::closedUp() const {
    if (!changed_) return Step::Nothing;
    return cancelled_ ? Step::GoBack : Step::ActLater;
}
