#include "tracking/pass_runner.h"

#include <cstdint>
#include <utility>

#include "cad/cad_session.h"
#include "common/text_decoding.h"
#include "ports/files.h"
#include "ports/message_boxes.h"
#include "ports/platform.h"
#include "session/list_hold.h"
#include "session/program_files.h"
#include "tracking/tracking_texts.h"
#include "worklist/report.h"

namespace {

using Redraw = PassView::Redraw;

Saved savedOf(std::optional<bool> answer) {
    if (!answer) return Saved::Unknown;
    return *answer ? Saved::Yes : Saved::No;
}

}  // namespace

PassRunner::PassRunner(Platform& platform, CadSession& cad, const ProgramFiles& files,
                       PassView& view)
    : platform_(platform),
      cad_(cad),
      files_(files),
      view_(view),
      listFile_{files.list, files.othersList()},
      pass_(platform.clock),
      marks_(platform.records, files.list, platform.clock) {}

template <class Command>
void PassRunner::settled(const Command& command) {
    try {
        command();
    } catch (...) {
        marks_.keepOn(pass_.list());
        throw;
    }
    marks_.opened();
}

void PassRunner::keepMarks(std::optional<std::int32_t> opening) {
    keepHoldOfList(platform_, files_);
    marks_.keep(pass_.list(), opening);
    if (marks_.takeFailure()) platform_.messageBoxes.show(marksNotKeptBox());
}

void PassRunner::read() {
    std::string bytes = platform_.files.readBytes(files_.list);
    listFile_.known = ContentIdentity(bytes);
    if (!pass_.read(textInUtf8(std::move(bytes)), files_.list)) throw ProgramEnd{};
    marks_.begin(*listFile_.known, pass_.list());
}

void PassRunner::start(Origin origin) {
    const bool opens = origin == Origin::Resumed ? resume() : pass_.start();
    settled([&] {
        // What an earlier run kept is told as it holds now, or gone when it doesn't.
        if (!opens) return endAt(Redraw::Anew);
        go(origin == Origin::LaunchedAfterDeclining ? Redraw::AllToDo : Redraw::Anew);
        cad_.bringForward();
    });
}

bool PassRunner::resume() {
    const auto kept = marks_.find();
    if (!kept || !offerMarks(*kept)) return pass_.start();
    pass_.restore(*kept);
    return kept->opening ? startBeside(*kept->opening) : pass_.start();
}

bool PassRunner::offerMarks(const KeptState& kept) {
    const int changed = changedLines(pass_.list(), kept);
    if (changed == 0) return true;
    // Only an explicit No: a box that could not be shown must not cost the marks.
    if (platform_.messageBoxes.show(keptMarksBox(changed)) != MessageBoxes::Answer::No) return true;
    marks_.forget();
    return false;
}

bool PassRunner::startBeside(std::int32_t fileLine) {
    const auto line = pass_.lineOfFile(fileLine);
    if (!line) return pass_.start();
    const std::wstring path = pass_.pathOf(*line);
    const auto answer = platform_.messageBoxes.show(interruptedOpeningBox(path));
    return answer == MessageBoxes::Answer::No ? pass_.startAt(*line) : pass_.startAfter(*line);
}

void PassRunner::save(std::int32_t lineCount) {
    const auto write = [&](const ByteSink& file) { file(pass_.fileText(lineCount)); };
    if (!::save(platform_, listFile_, write)) return;
    marks_.forget();
    pass_.takeAsSaved();
    marks_.begin(*listFile_.known, pass_.list());
}

std::string PassRunner::report() {
    pass_.countOpenTime();
    return reportOf(pass_.list(), platform_.clock);
}

void PassRunner::leave() { cad_.closeDocument(); }

void PassRunner::advance(LineState mark) {
    settled([&] {
        if (pass_.pastEnd()) return;
        const Saved saved = mark == LineState::Done ? savedOf(cad_.save()) : Saved::Unknown;
        cad_.closeDocument();
        cad_.forgetDocument();
        if (!pass_.advance(mark, saved)) return endAt(Redraw::InPlace);
        go(Redraw::InPlace);
        view_.allowStepBack();
        cad_.bringForward();
    });
}

void PassRunner::stepBack() {
    settled([&] {
        if (pass_.current() < 0) return;
        // It still counts as open: a document of the same path further up is taken for it.
        cad_.closeDocument();
        if (!pass_.stepBack()) {
            keepMarks();
            return view_.showTop();
        }
        go(Redraw::InPlace);
        view_.allowAdvance();
        cad_.bringForward();
    });
}

void PassRunner::change(const LineSelected& selected, LineState state) {
    settled([&] { follow(pass_.change(selected, state)); });
}

void PassRunner::eliminate(const LineSelected& chosen, Eliminate states) {
    settled([&] { follow(pass_.eliminate(chosen, states)); });
}

void PassRunner::reset(const LineSelected& selected) {
    settled([&] {
        pass_.reset(selected);
        follow(true);
        cad_.bringForward();
    });
}

void PassRunner::resumeAt(int line) {
    settled([&] {
        if (pass_.resumeAt(line)) view_.allowAdvance();
        // With nothing left to do below, the last line is opened again, whatever its state.
        go(Redraw::Anew);
    });
}

void PassRunner::follow(bool inProgress) {
    if (!inProgress) return endAt(Redraw::Anew);
    view_.allowAdvance();
    go(Redraw::Anew);
}

void PassRunner::go(Redraw redraw) {
    view_.showCurrent(redraw);
    openCurrent();
    view_.showDocument();
}

void PassRunner::openCurrent() {
    const std::wstring path = pass_.currentPath();
    if (cad_.hasOpen(path)) return keepMarks();
    view_.showOpening();
    closeOther();
    pass_.openCurrent();
    keepMarks(pass_.list().lines[pass_.current()].fileLine);
    cad_.open(path, view_.loadingOptions());
}

void PassRunner::closeOther() {
    if (!cad_.hasAnyOpen()) return;
    keepMarks();
    cad_.closeDocument();
}

void PassRunner::endAt(Redraw redraw) {
    keepMarks();
    view_.showEnd(redraw);
}
