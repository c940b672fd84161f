#include "storage/saving.h"

#include <optional>
#include <string>

#include "common/runtime_error.h"
#include "ports/dialogs.h"
#include "ports/files.h"
#include "ports/list_holds.h"
#include "ports/machine.h"
#include "storage/program_files.h"
#include "worklist/mark_keeper.h"

namespace {

bool changedByOthers(Files& files, const SharedFile& file) {
    return files.isFile(file.path) && file.known != ContentIdentity(files.readBytes(file.path));
}

bool keepOthers(Platform& platform, const SharedFile& file) {
    try {
        platform.files.keepCopy(file.path, file.othersCopy);
        return true;
    } catch (const RuntimeError& error) {
        platform.messageBoxes.warn(
            L"Rien n'est enregistré : ce fichier a été changé par un autre programme, et "
            L"ne peut pas être gardé à côté.\r\n" +
            file.path + L"\r\n" + error.text);
        return false;
    }
}

}  // namespace

bool save(Platform& platform, SharedFile& file, const WriteContent& write) {
    const bool changed = changedByOthers(platform.files, file);
    if (changed && !keepOthers(platform, file)) return false;
    ContentIdentity written;
    platform.files.replace(file.path, [&](const ByteSink& sink) {
        write([&](std::string_view piece) {
            written.add(piece);
            sink(piece);
        });
    });
    file.known = written;
    if (changed) {
        platform.messageBoxes.warn(L"Enregistré. Un autre programme avait changé ce fichier :\r\n" +
                                   file.path + L"\r\nCe qu'il y avait mis est gardé dans :\r\n" +
                                   file.othersCopy);
    }
    return true;
}

namespace {

/// A file of the previous list. Its changes are undone unless all goes well.
class PreviousFile {
 public:
    PreviousFile(Files& files, const std::wstring& path) : files_(files), path_(path) {
        if (files.isFile(path)) older_ = files.readBytes(path);
    }
    ~PreviousFile() {
        if (!changed_) return;
        try {
            putBack();
        } catch (...) {
            // The user is told about the first failure.
        }
    }
    PreviousFile(const PreviousFile&) = delete;
    PreviousFile& operator=(const PreviousFile&) = delete;

    bool isThere() const { return older_.has_value(); }
    void become(const std::wstring& file) {
        files_.keepCopy(file, path_);
        changed_ = true;
    }
    void go() {
        files_.remove(path_);
        changed_ = true;
    }
    void stayChanged() { changed_ = false; }

 private:
    void putBack() {
        if (!older_) return files_.remove(path_);
        files_.replace(path_, [&](const ByteSink& file) { file(*older_); });
    }

    Files& files_;
    std::wstring path_;
    std::optional<std::string> older_;
    bool changed_ = false;
};

/// A list file that is about to be removed or replaced, with its kept marks.
class LeavingList {
 public:
    LeavingList(Files& files, const ProgramFiles& programFiles)
        : files_(files),
          list_(programFiles.list),
          marks_(keptMarksFile(list_)),
          previous_(programFiles.previousList()),
          hasLine_(files.isFile(list_) && !files.read(list_).empty()),
          hasMarks_(files.isFile(marks_) && !files.readBytes(marks_).empty()) {}

    bool leavesSomething() const { return hasLine_ || hasMarks_; }

    void leaveBy(const std::function<void()>& replacing) {
        PreviousFile list(files_, previous_);
        PreviousFile marks(files_, keptMarksFile(previous_));
        if (hasLine_) list.become(list_);
        // Marks without their list are worth less than older ones with theirs.
        if (hasMarks_ && (hasLine_ || !marks.isThere())) {
            marks.become(marks_);
        } else if (hasLine_ && marks.isThere()) {
            marks.go();
        }
        replacing();
        list.stayChanged();
        marks.stayChanged();
        dropMarks();
    }

 private:
    void dropMarks() {
        try {
            files_.remove(marks_);
        } catch (const RuntimeError&) {
            // There are none, or they don't fit the list that is there now, and are never offered.
        }
    }

    Files& files_;
    std::wstring list_, marks_, previous_;
    bool hasLine_, hasMarks_;
};

std::wstring openElsewhere(const std::wstring& list, const ListHolder& holder) {
    return L"La liste précédente serait remplacée, mais elle est ouverte " + holderText(holder) +
           L" :\r\n" + list + L"\r\nRien n'a été changé. Fermez-la, puis recommencez.";
}

}  // namespace

bool replaceList(Platform& platform, const ProgramFiles& files,
                 const std::function<void()>& replacing) {
    LeavingList leaving(platform.files, files);
    if (!leaving.leavesSomething()) return replacing(), true;
    const std::wstring previous = files.previousList();
    const auto holder = platform.listHolds.whileFree(previous, ProgramFiles::holdFileOf(previous),
                                                     [&] { leaving.leaveBy(replacing); });
    if (holder) platform.messageBoxes.warn(openElsewhere(previous, *holder));
    return !holder;
}
