// What the tracking window keeps of its marks, and what it offers of those of an earlier run.

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "ports/platform.h"
#include "tracking/tracking_texts.h"
#include "tracking/tracking_window.h"

bool TrackingWindow::resume() {
    auto kept = marks_.find();
    if (!kept || !offerMarks(*kept)) return pass_.start();
    const auto opening = kept->opening;
    pass_.restore(*kept);
    return opening ? startBeside(*opening) : pass_.start();
}

bool TrackingWindow::offerMarks(KeptState& kept) {
    const int changed = changedLines(pass_.list(), kept);
    if (changed == 0) return true;
    // Only an explicit No: a box that could not be shown must not cost the marks.
    if (platform_.messageBoxes.show(keptMarksBox(changed)) != MessageBoxes::Answer::No) return true;
    marks_.forget();
    return false;
}

bool TrackingWindow::startBeside(std::int32_t fileLine) {
    const auto line = pass_.lineOfFile(fileLine);
    if (!line) return pass_.start();
    const std::wstring path = pass_.pathOf(*line);
    const auto answer = platform_.messageBoxes.show(interruptedOpeningBox(path));
    return answer == MessageBoxes::Answer::No ? pass_.startAt(*line) : pass_.startAfter(*line);
}

void TrackingWindow::keepMarks(std::optional<std::int32_t> opening) {
    marks_.keep(pass_.list(), opening);
    if (marks_.takeFailure()) platform_.messageBoxes.show(marksNotKeptBox());
}

void TrackingWindow::settle() { marks_.opened(); }

void TrackingWindow::explain(RuntimeError& error) const {
    if (marks_.keeps()) error.addLine(kMarksAreKept);
}
