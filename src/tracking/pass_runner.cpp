#include "tracking/pass_runner.h"

#include <cstdint>
#include <utility>

#include "cad/cad_session.h"
#include "common/encoding.h"
#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/machine.h"
#include "storage/program_files.h"
#include "tracking/tracking_texts.h"
#include "worklist/report.h"

namespace {

/// While it lives the documents are counted in `outcome`.
class CountedIn {
 public:
    CountedIn(AloneOutcome*& counted, AloneOutcome& outcome) : counted_(counted) {
        counted_ = &outcome;
    }
    ~CountedIn() { counted_ = nullptr; }
    CountedIn(const CountedIn&) = delete;
    CountedIn& operator=(const CountedIn&) = delete;

 private:
    AloneOutcome*& counted_;
};

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
    saveRefused_ = false;
    view_.showAlert(alert());
    try {
        command();
    } catch (...) {
        marks_.keepOn(pass_.list());
        throw;
    }
    marks_.settle(pass_.list());
    view_.showAlert(alert());
    view_.showChoices();
}

void PassRunner::setOptions(const PassOptions& options) {
    options_ = options;
    cad_.leaveUsersDocuments(options.leavesUsers);
}

Alert PassRunner::alert() const {
    if (saveRefused_) return Alert::Refusal;
    return openWarns_ ? Alert::Warning : Alert::None;
}

void PassRunner::keepMarks(std::optional<std::int32_t> opening) {
    marks_.keep(pass_.list(), opening);
    keepHoldOfList(platform_, files_);
    // Going alone, nobody may be there to answer: what has passed by the next document is not told.
    if (alone_ && !marksLag_) return;
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
        // What an earlier run kept is written as it holds now, or dropped.
        if (!opens) return endAt(Redraw::Anew);
        const bool allToDo = origin == Origin::LaunchedAfterDeclining;
        if (go(allToDo ? Redraw::AllToDo : Redraw::Anew)) cad_.bringForward();
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
    // Only an explicit No drops them: a box that could not be shown must not.
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
    // A save that fails ends the program.
    marks_.keepOn(pass_.list());
    const auto write = [&](const ByteSink& file) { pass_.write(lineCount, file); };
    if (!::save(platform_, listFile_, write)) return;
    marks_.forget();
    pass_.takeAsSaved();
    marks_.begin(*listFile_.known, pass_.list());
}

std::string PassRunner::report() {
    pass_.countOpenTime();
    return reportOf(pass_.list(), platform_.clock);
}

void PassRunner::leave() {
    marks_.keepOn(pass_.list());
    close();
    cad_.restoreWorkingDirectory();
}

void PassRunner::end() {
    marks_.keepOn(pass_.list());
    cad_.restoreWorkingDirectory();
}

void PassRunner::advance(LineState mark) {
    settled([&] {
        if (pass_.pastEnd()) return;
        // Nothing is open at a line whose document did not open: it can only be skipped.
        if (stays_) mark = LineState::ToDo;
        const auto saved = mark == LineState::Done ? save() : Saved::Unknown;
        if (!saved) return;
        if (alone_) mark = countedAlone(*saved);
        close();
        cad_.forgetDocument();
        if (!pass_.advance(mark)) return endAt(Redraw::InPlace);
        if (!go(Redraw::InPlace)) return;
        view_.allowStepBack();
        cad_.bringForward();
    });
}

void PassRunner::stepBack() {
    settled([&] {
        if (pass_.current() < 0) return;
        // It still counts as open: a line above with the same path will not open it again.
        close();
        if (!pass_.stepBack()) return endAtTop();
        if (!go(Redraw::InPlace, Direction::Up)) return;
        view_.allowAdvance();
        cad_.bringForward();
    });
}

void PassRunner::undo() {
    settled([&] {
        if (!pass_.canUndo()) return;
        if (cad_.hasAnyOpen()) close();
        cad_.forgetDocument();
        pass_.undo();
        view_.allowAdvance();
        if (!go(Redraw::InPlace)) return;
        view_.allowStepBack();
        cad_.bringForward();
    });
}

bool PassRunner::hasDocument() const {
    const bool isOnLine = pass_.current() >= 0 && !pass_.pastEnd();
    return isOnLine && cad_.isOpen() && cad_.hasOpen(pass_.currentPath());
}

int PassRunner::documentsLeft() const {
    int left = 1;
    for (int i = pass_.current() + 1; i <= pass_.list().last; ++i) left += pass_.list().isToDo(i);
    return left;
}

AloneOutcome PassRunner::goAlone(const std::function<bool()>& goesOn) {
    AloneOutcome outcome;
    {
        const CountedIn counting(alone_, outcome);
        outcome.end = advanceAlone(goesOn);
    }
    keepMarks();
    return outcome;
}

AloneOutcome::End PassRunner::advanceAlone(const std::function<bool()>& goesOn) {
    using End = AloneOutcome::End;
    // Windows lets a program have 10,000 by default ("GDI Objects", win32 sysinfo). The CAD
    // application warns from about 85 % of these on (vendor's forum, thread 214732).
    constexpr int kMostGdiObjects = 8'500;
    while (hasDocument()) {
        if (!goesOn()) return End::Stopped;
        if (cad_.gdiObjects().value_or(0) > kMostGdiObjects) return End::ShortOfGdiObjects;
        marksLag_ = marks_.lags();
        advance(LineState::Done);
    }
    return stays_ ? End::FiveRefusals : End::Finished;
}

LineState PassRunner::countedAlone(Saved saved) {
    ++(saved == Saved::No ? alone_->notSaved : alone_->saved);
    return saved == Saved::No ? LineState::ToDo : LineState::Done;
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
        view_.allowAdvance();
        if (go(Redraw::Anew)) cad_.bringForward();
    });
}

void PassRunner::resumeAt(int line) {
    settled([&] {
        if (pass_.resumeAt(line)) view_.allowAdvance();
        // With nothing to do from there on, the last line's document is opened, whatever its state.
        go(Redraw::Anew);
    });
}

void PassRunner::follow(bool inProgress) {
    if (!inProgress) return endAt(Redraw::Anew);
    view_.allowAdvance();
    go(Redraw::Anew);
}
