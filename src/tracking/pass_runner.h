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

/// Shows a pass: what its runner tells between the calls to the CAD application.
class PassView {
 public:
    enum class Redraw { InPlace, Anew, AllToDo };

    virtual ~PassView() = default;

    /// How the boxes ask for documents to be loaded.
    virtual LoadingOptions loadingOptions() const = 0;
    /// The list, and the current line in it, whose document will be opened unless it is open.
    virtual void showCurrent(Redraw redraw) = 0;
    /// That document is about to be opened, which may take long.
    virtual void showOpening() = 0;
    /// That document is open.
    virtual void showDocument() = 0;
    /// The end of the list is reached: there is nothing to advance from.
    virtual void showEnd(Redraw redraw) = 0;
    /// Nothing to do was found above: there is nothing to step back from.
    virtual void showTop() = 0;
    virtual void allowAdvance() = 0;
    virtual void allowStepBack() = 0;
    virtual void showAlert(Alert alert) = 0;
    /// What can be undone, and what can be gone on from, may be something else now.
    virtual void showChoices() = 0;
};

/// What a pass does when the session says no. All off: what it always did.
struct PassOptions {
    bool passesRefused = false;  ///< documents that don't open are left to do
    bool keepsUnsaved = false;   ///< none is closed whose save was refused, unless it is told so
    bool leavesUsers = false;    ///< documents that the user had open stay open
    bool worksThere = false;     ///< references are looked for beside the document
};

/// What became of the documents while the pass went on alone, and why it ended.
struct AloneOutcome {
    enum class End { Finished, Stopped, FiveRefusals, ShortOfGdiObjects };

    int saved = 0;
    int notOpened = 0;
    int notSaved = 0;
    End end = End::Finished;
};

/// Runs a pass: the one place where its list, its current line, the marks kept of it and the calls
/// to the CAD application meet. Each command runs from one call to the next, what it changed is on
/// disk before a call goes out, and it is settled whichever way it ends.
class PassRunner {
 public:
    /// Where the list comes from: resumed from an earlier run, whose marks may have been kept;
    /// launched now; or launched after an old list was declined: then all lines but the first show
    /// as to do at first.
    enum class Origin { Resumed, Launched, LaunchedAfterDeclining };

    PassRunner(Platform& platform, CadSession& cad, const ProgramFiles& files, PassView& view);

    const Pass& pass() const { return pass_; }
    /// Whether all marks of the pass will be offered at the next start.
    bool keepsMarks() const { return marks_.keeps(); }

    const PassOptions& options() const { return options_; }
    void setOptions(const PassOptions& options);

    /// Reads the list file. Ends the program when it is empty.
    void read();
    /// Begins the pass, with the marks of an earlier run where the user wants them.
    void start(Origin origin);
    /// Writes the list file, with so many lines.
    void save(std::int32_t lineCount);
    /// What happened to each document, as a table.
    std::string report();
    /// Closes the document that is open: the program ends.
    void leave();
    /// The program ends, and nothing is closed.
    void end();

    /// The user may have moved the pointer to another line.
    void moveTo(int line) { pass_.moveTo(line); }
    /// Marks the current line, saves its document when that is Done, and goes on to the next one.
    void advance(LineState mark);
    void stepBack();
    /// Undoes the last advance of this run, if there is one to undo.
    void undo();

    /// Whether a document is open, which advancing would close.
    bool hasDocument() const;
    /// How many documents the current line's is, with those to do below it.
    int documentsLeft() const;
    /// Advances, saving, from document to document to the end of the list, and asks nothing:
    /// documents that don't open are passed over, up to five in a row; one whose save is refused is
    /// closed and left to do. Before each document `goesOn` tells whether to.
    AloneOutcome goAlone(const std::function<bool()>& goesOn);
    void change(const LineSelected& selected, LineState state);
    void eliminate(const LineSelected& chosen, Eliminate states);
    void reset(const LineSelected& selected);
    /// Goes on at the first line to do from this one on.
    void resumeAt(int line);

 private:
    /// Carries out a command. When it fails what it changed is on disk, and the document that was
    /// being opened stays noted there.
    template <class Command>
    void settled(const Command& command);
    /// What the command did is on disk; a failure to put it there is told once.
    void keepMarks(std::optional<std::int32_t> opening = std::nullopt);

    using Direction = Pass::Direction;
    using Redraw = PassView::Redraw;

    /// Shows the current line and opens its document; goes on to the next one, in this direction,
    /// from one that does not open and may be passed over. False when none is open at the end.
    bool go(Redraw redraw, Direction direction = Direction::Down);
    /// False when it does not open.
    bool openCurrent();
    bool open(const std::wstring& path);
    /// Saves the open document. Nothing when the user would rather leave it open than unsaved.
    std::optional<Saved> save();
    std::optional<std::int32_t> saveOnce();
    void close();
    /// Closes the document that counts as open, if any. None is being opened yet: what goes wrong
    /// now is not the next one's doing.
    void closeOther();
    void endAt(Redraw redraw);
    void endAtTop();
    /// Going alone: what became of the document, which is left to do unless it was saved.
    LineState countedAlone(Saved saved);
    /// Every few refusals in a row the user is asked whether to go on; going alone ends there.
    bool goesOnAfter(int refusals);
    /// The current line is one whose document did not open, and the user went no further.
    void stay();
    Alert alert() const;
    /// After an edit of the list.
    void follow(bool inProgress);

    /// Offers the marks that an earlier run kept and, when it stopped while a document was being
    /// opened, to go past that one. True when there is a document to open.
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
    AloneOutcome* alone_ = nullptr;  ///< while it goes on alone
    bool stays_ = false;             ///< at a line whose document did not open
    bool saveRefused_ = false;       ///< by the command
    bool openWarns_ = false;         ///< the open document, when it was opened
};
