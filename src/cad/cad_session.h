#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "ports/machine.h"
#include "rules/late_binding.h"
#include "worklist/remark.h"
#include "worklist/work_list.h"

/// How a document is loaded.
struct LoadingOptions {
    enum class Rebuild { None, TopLevel, AllLevels };

    bool silent = false;
    Rebuild rebuild = Rebuild::None;
    bool mayRefuse = false;   ///< a document that does not open is no error
    bool worksThere = false;  ///< references are first looked for in the document's directory
};

/// What the application answered when asked to save a document: whether it did, unless it did not
/// say, and its code.
struct SaveAnswer {
    Saved saved = Saved::Unknown;
    std::int32_t code = 0;
};

/// The running CAD application, and the document that the program has open in it. Every call has
/// exactly the name and the arguments that the application expects. All functions but `attach`
/// raise what it answers (438, 440), and 91 when there is no document to call.
class CadSession {
 public:
    explicit CadSession(Desktop& desktop) : desktop_(desktop) {}

    /// Attaches to the running application, and never starts one: to the one registered for its
    /// class, or else to the first one registered under its process. False when there is none.
    bool attach(Automation& automation);
    /// Asks the application for its release and its working directory.
    void identify();
    const std::wstring& workingDirectory() const { return workingDirectory_; }

    /// Whether this is the document that counts as open, in any letter case.
    bool hasOpen(const std::wstring& path) const;
    bool hasAnyOpen() const { return !openPath_.empty(); }
    /// Whether it has not been closed since.
    bool isOpen() const { return hasAnyOpen() && !closed_; }
    /// Its path; empty when none counts as open.
    const std::wstring& openPath() const { return openPath_; }
    /// Opens a document, which counts as open from then on, activates it, shows the application and
    /// rebuilds the document as wanted. Whatever happens, `remark` holds what the application said.
    /// False when the document does not open although the options allow that: then it is closed
    /// again if the application had returned it, and none counts as open.
    bool open(const std::wstring& path, const LoadingOptions& options, Remark& remark);
    SaveAnswer save();
    /// Closes the open document without saving it; the call goes out even when none is open. The
    /// document still counts as open until forgetDocument.
    void closeDocument();
    void forgetDocument();
    /// Whether documents that the user had open are left open. Then no call goes out without a
    /// path, either, since that closes whichever document is active (ISldWorks~CloseDoc).
    void leaveUsersDocuments(bool leave) { leavesUsers_ = leave; }
    /// Sets the working directory back to what it was, if `open` changed it. Ignores failures.
    void restoreWorkingDirectory();
    /// Brings the application's window to the front, if its title is as expected, and zooms the
    /// document to fit.
    void bringForward();
    /// How many GDI objects the application uses; nothing when its window isn't found by the title
    /// of any release.
    std::optional<int> gdiObjects();
    /// Whether its window may also have a title of the releases since 2005, and is restored if it
    /// is minimised.
    void expectAnyRelease(bool any) { anyRelease_ = any; }

    /// The directories where the application looks for referenced documents, separated by
    /// semicolons.
    std::wstring searchFolders();
    /// Sets them. True when the application took them.
    bool setSearchFolders(std::wstring folders);

 private:
    bool load(const std::wstring& path, const LoadingOptions& options, Remark& remark);
    /// Returns the application's error code.
    std::int32_t openDocument(const std::wstring& path, bool silent, Remark& remark);
    void activate(const std::wstring& path);
    void changeDirectory(const std::wstring& directory);
    void rebuild(LoadingOptions::Rebuild wanted);
    std::wstring title();
    Desktop::WindowHandle findWindow();
    Desktop::WindowHandle findWindowOfAnyRelease();

    Desktop& desktop_;
    ObjectPtr application_;
    ObjectPtr document_;  ///< the one opened last, null when that failed
    std::wstring releaseName_;
    std::wstring workingDirectory_;
    Desktop::WindowHandle window_ = 0;  ///< the window last brought forward …
    std::wstring title_;                ///< … and the document's title then
    std::wstring openPath_;             ///< empty when no document counts as open
    std::int16_t typeCode_ = 0;
    bool anyRelease_ = false;
    bool leavesUsers_ = false;
    bool closed_ = false;   ///< the document that counts as open has been closed
    bool isUsers_ = false;  ///< the user had the open document open already
    bool movedAway_ = false;
};
