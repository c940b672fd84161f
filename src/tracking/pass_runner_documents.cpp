// What a pass does with its documents between two commands: opening, saving and closing them, and
// what becomes of one that does not open.

#include <cstdint>
#include <optional>

#include "cad/cad_session.h"
#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/machine.h"
#include "tracking/pass_runner.h"
#include "tracking/tracking_texts.h"

bool PassRunner::go(Redraw redraw, Direction direction) {
    stays_ = false;
    for (int refusals = 1;; ++refusals) {
        view_.showCurrent(redraw);
        if (openCurrent()) break;
        redraw = Redraw::InPlace;
        pass_.leaveToDo();
        keepMarks();
        if (!goesOnAfter(refusals)) return stay(), false;
        if (!pass_.passOver(direction)) {
            if (direction == Direction::Down) return endAt(redraw), false;
            stays_ = true;
            return endAtTop(), false;
        }
    }
    view_.showDocument();
    return true;
}

bool PassRunner::openCurrent() {
    const std::wstring path = pass_.currentPath();
    if (cad_.hasOpen(path)) {
        // It may have been opened for another line of the same path.
        if (cad_.isOpen()) pass_.openCurrent();
        return keepMarks(), true;
    }
    view_.showOpening();
    closeOther();
    pass_.openCurrent();
    keepMarks(pass_.list().lines[pass_.current()].fileLine);
    return open(path);
}

bool PassRunner::open(const std::wstring& path) {
    LoadingOptions options = view_.loadingOptions();
    options.mayRefuse = alone_ || options_.passesRefused;
    options.worksThere = options_.worksThere;
    Remark remark;
    try {
        const bool opened = cad_.open(path, options, remark);
        openWarns_ = opened && remark.warns();
        pass_.noteOpening(remark);
        return opened;
    } catch (const RuntimeError&) {
        pass_.noteOpening(remark);
        throw;
    }
}

bool PassRunner::goesOnAfter(int refusals) {
    constexpr int kInARow = 5;
    if (alone_) ++alone_->notOpened;
    if (refusals % kInARow != 0) return true;
    view_.showCurrent(Redraw::InPlace);
    if (alone_) return false;
    return platform_.messageBoxes.show(refusedInARowBox()) == MessageBoxes::Answer::Yes;
}

void PassRunner::stay() {
    stays_ = true;
    view_.showDocument();
    view_.allowAdvance();
    view_.allowStepBack();
}

void PassRunner::closeOther() {
    if (!cad_.hasAnyOpen()) return;
    keepMarks();
    close();
}

void PassRunner::endAt(Redraw redraw) {
    keepMarks();
    view_.showEnd(redraw);
}

void PassRunner::endAtTop() {
    keepMarks();
    view_.showTop();
}

std::optional<Saved> PassRunner::save() {
    for (;;) {
        const auto [saved, code] = saveOnce();
        saveRefused_ = saved == Saved::No;
        if (!saveRefused_ || alone_ || !options_.keepsUnsaved) return saved;
        const auto box = saveRefusedBox(cad_.openPath(), saveRefusalText(code));
        if (platform_.messageBoxes.show(box) != MessageBoxes::Answer::Retry) return std::nullopt;
    }
}

SaveAnswer PassRunner::saveOnce() {
    using Saving = Remark::Saving;
    try {
        const SaveAnswer answer = cad_.save();
        const bool refused = answer.saved == Saved::No;
        pass_.noteSaving(answer.saved, refused ? Saving::Refused : Saving::Silent, answer.code);
        return answer;
    } catch (const RuntimeError& error) {
        pass_.noteSaving(Saved::No, Saving::Failed, error.number);
        throw;
    }
}

void PassRunner::close() {
    openWarns_ = false;
    // Nothing is open at a line that was left to do, and without a name another document would go.
    if (!stays_) cad_.closeDocument();
}
