#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ports/window.h"
#include "storage/saving.h"
#include "worklist/mark_keeper.h"
#include "worklist/pass.h"

class CadSession;
struct LoadingOptions;
struct Platform;
struct ProgramFiles;
struct SaveAnswer;

/// Shows a pass, as its runner says between the calls to the CAD application.
class PassView {
 public:
    enum class Redraw { InPlace, Anew, AllToDo };

    virtual ~PassView() = default;

    /// How the check boxes say that documents are to be loaded.
    virtual LoadingOptions loadingOptions() const = 0;
    /// Shows the list and its current line, whose document will be opened unless it is open.
    virtual void showCurrent(Redraw redraw) = 0;
    /// That document is about to be opened, which may take long.
    virtual void showOpening() = 0;
    /// That document is open.
    virtual void showDocument() = 0;
    /// The end of the list is reached: advancing is no longer possible.
    virtual void showEnd(Redraw redraw) = 0;
    /// Nothing to do was found above: stepping back is no longer possible.
    virtual void showTop() = 0;
    virtual void allowAdvance() = 0;
    virtual void allowStepBack() = 0;
    virtual void showAlert(Alert alert) = 0;
    /// Undoing and going on alone may have become possible or impossible.
    virtual void showChoices() = 0;
};

/// What a pass does when the session refuses something. All of it is off unless the user chooses.
struct PassOptions {
    bool passesRefused = false;  ///< documents that don't open are passed over, and left to do
    bool keepsUnsaved = false;   ///< a document whose save was refused stays open if the user wants
    bool leavesUsers = false;    ///< documents that the user had open stay open
    bool worksThere = false;     ///< references are looked for beside the document
};

/// What became of the documents while the pass went on alone, and why that ended.
struct AloneOutcome {
    enum class End { Finished, Stopped, FiveRefusals, ShortOfGdiObjects };

    int saved = 0;
    int notOpened = 0;
    int notSaved = 0;
    End end = End::Finished;
};

/// Runs a pass: the one place where the list, the current line, the kept marks and the calls to the
/// CAD application meet. What a command changed is on disk before its next call goes out, and each
/// command is settled whichever way it ends.
class PassRunner {
 public:
    /// Where the list comes from. Resumed: from an earlier run, whose marks may have been kept.
    /// LaunchedAfterDeclining an old list: at first all lines but the first are shown as to do.
    enum class Origin { Resumed, Launched, LaunchedAfterDeclining };

    PassRunner(Platform& platform, CadSession& cad, const ProgramFiles& files, PassView& view);

    const Pass& pass() const { return pass_; }
    /// Whether there are marks, all of which will be offered at the next start.
    bool keepsMarks() const { return marks_.keeps(); }

    const PassOptions& options() const { return options_; }
    void setOptions(const PassOptions& options);

    /// Reads the list file. Ends the program when it is empty.
    void read();
    /// Begins the pass, with the marks of an earlier run if the user wants them.
    void start(Origin origin);
    /// Writes the list file with so many lines.
    void save(std::int32_t lineCount);
    /// What happened to each document, as a table.
    std::string report();
    // The program ends. Marks that could not be kept so far are tried once more.
    /// Closes the open document.
    void leave();
    /// Closes nothing.
    void end();

    /// The user may have moved the pointer to another line.
    void moveTo(int line) { pass_.moveTo(line); }
    /// Marks the current line, saves its document if the mark is Done, and goes on to the next one.
    void advance(LineState mark);
    void stepBack();
    /// Undoes the last advance of this run, if any.
    void undo();

    /// Whether the current line's document is open.
    bool hasDocument() const;
    /// How many documents are left: the current line's and those to do below it.
    int documentsLeft() const;
    /// Saves and advances, document by document, to the end of the list, and asks nothing.
    /// Documents that don't open are passed over, up to five in a row; one whose save is refused is
    /// closed and left to do. Before each document `goesOn` says whether to go on.
    AloneOutcome goAlone(const std::function<bool()>& goesOn);
    void change(const LineSelected& selected, LineState state);
    void eliminate(const LineSelected& chosen, Eliminate states);
    void reset(const LineSelected& selected);
    /// Goes on at the first line to do, from this one downwards.
    void resumeAt(int line);

 private:
    /// Carries out a command. If it fails, what it has changed is on disk, where the document that
    /// was being opened stays noted.
    template <class Command>
    void settled(const Command& command);
    /// Puts on disk what the command has done so far. Tells the user once when that fails.
    void keepMarks(std::optional<std::int32_t> opening = std::nullopt);

    using Direction = Pass::Direction;
    using Redraw = PassView::Redraw;

    /// Shows the current line and opens its document. If that does not open and may be passed over,
    /// goes on to the next one in this direction. False when none is open in the end.
    bool go(Redraw redraw, Direction direction = Direction::Down);
    /// False when it does not open.
    bool openCurrent();
    bool open(const std::wstring& path);
    /// Saves the open document. Nothing when it was refused, and the user keeps the document open.
    std::optional<Saved> save();
    SaveAnswer saveOnce();
    void close();
    /// Closes the document that counts as open, if any, before the next one is noted as being
    /// opened: a failure now is not due to that one.
    void closeOther();
    void endAt(Redraw redraw);
    void endAtTop();
    AloneOutcome::End advanceAlone(const std::function<bool()>& goesOn);
    /// Going alone: counts the document. Returns its mark: it is left to do unless it was saved.
    LineState countedAlone(Saved saved);
    /// After every five refusals in a row asks the user whether to go on. Going alone ends there.
    bool goesOnAfter(int refusals);
    /// Stays at the current line, whose document did not open.
    void stay();
    Alert alert() const;
    /// Goes on after an edit of the list.
    void follow(bool inProgress);

    /// Offers the marks that an earlier run kept, and, if that ended while it opened a document,
    /// offers to pass over this one. True when there is a document to open.
    bool resume();
    bool offerMarks(const KeptState& kept);
    bool startBeside(std::int32_t fileLine);

    Platform& platform_;
    CadSession& cad_;
    const ProgramFiles& files_;
    PassView& view_;
    SharedFile listFile_;
    Pass pass_;
    MarkKeeper marks_;
    PassOptions options_;
    AloneOutcome* alone_ = nullptr;  ///< null unless the pass is going on alone
    bool stays_ = false;     ///< the current line's document did not open, or none of those above
    bool marksLag_ = false;  ///< going alone: those of the document before could not be kept
    bool saveRefused_ = false;  ///< the last command's save was refused
    bool openWarns_ = false;    ///< the open document opened with warnings or errors
};
