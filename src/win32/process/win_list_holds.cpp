#include "win32/process/win_list_holds.h"

#include <lmcons.h>

#include "common/encoding.h"
#include "common/text.h"
#include "rules/windows_files.h"

namespace {

// For two names, of at most 256 and 63 characters.
constexpr DWORD kMostBytes = 2000;

/// Opened for reading as well, although nothing is read: otherwise a file server may refuse a write
/// now and then (the CreateFile function). Nothing is written yet, in case it is a link.
UniqueHandle create(const std::wstring& path) {
    constexpr DWORD kFlags =
        FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT;
    return UniqueHandle(CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ,
                                    nullptr, OPEN_ALWAYS, kFlags, nullptr));
}

/// Whether a file is no link, and has no second name.
bool isPlain(HANDLE file) {
    BY_HANDLE_FILE_INFORMATION facts{};
    return GetFileInformationByHandle(file, &facts) && facts.nNumberOfLinks == 1 &&
           !(facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

/// A file that deletes itself can be opened only by those who allow its deletion.
UniqueHandle open(const std::wstring& path, DWORD alsoShared) {
    return UniqueHandle(CreateFileW(path.c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_DELETE | alsoShared, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
}

DWORD errorOf(const UniqueHandle& file) { return isValid(file) ? 0 : GetLastError(); }

/// Should this fail, others are told less, and that is all.
void write(HANDLE file, const ListHolder& names) {
    std::string bytes;
    appendUtf8(bytes, names.user + L"\r\n" + names.machine + L"\r\n");
    SetEndOfFile(file);
    DWORD written = 0;
    WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    FlushFileBuffers(file);
}

}  // namespace

HoldFile::HoldFile(const std::wstring& path) : path_(longPath(path)) {}

HoldFileState HoldFile::take(const ListHolder& us) {
    file_.reset(INVALID_HANDLE_VALUE);
    file_ = create(path_);
    const DWORD creating = errorOf(file_);
    if (creating == 0) {
        if (isPlain(file_.get())) {
            write(file_.get(), us);
            return HoldFileState::Ours;
        }
        // Closing the handle deletes the link, and leaves what it leads to as it is.
        file_.reset(INVALID_HANDLE_VALUE);
        return HoldFileState::Busy;
    }
    const UniqueHandle found = open(path_, 0);
    return holdFileState(creating, errorOf(found));
}

bool HoldFile::isOpen() const {
    BY_HANDLE_FILE_INFORMATION facts{};
    return isValid(file_) && GetFileInformationByHandle(file_.get(), &facts);
}

ListHolder HoldFile::holder() const {
    const UniqueHandle file = open(path_, FILE_SHARE_WRITE);
    std::string bytes(kMostBytes, '\0');
    DWORD got = 0;
    if (!isValid(file) || !ReadFile(file.get(), bytes.data(), kMostBytes, &got, nullptr)) return {};
    std::string_view rest(bytes.data(), got);
    const std::wstring user = wideText(takeLine(rest));
    return {user, wideText(takeLine(rest))};
}

SessionHold::SessionHold(const std::wstring& name)
    : mutex_(CreateMutexW(nullptr, FALSE, (L"Local\\" + name).c_str())),
      section_(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG),
                                  (L"Local\\" + name + L"-programme").c_str())) {
    if (!section_) return;
    owner_.reset(
        static_cast<LONG*>(MapViewOfFile(section_.get(), FILE_MAP_WRITE, 0, 0, sizeof(LONG))));
}

SessionHold::~SessionHold() {
    if (!taken_) return;
    if (owner_) InterlockedExchange(owner_.get(), 0);
    ReleaseMutex(mutex_.get());
}

bool SessionHold::take() {
    if (!mutex_) return true;
    const DWORD result = WaitForSingleObject(mutex_.get(), 0);
    taken_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
    if (taken_ && owner_) {
        InterlockedExchange(owner_.get(), static_cast<LONG>(GetCurrentProcessId()));
    }
    return taken_;
}

DWORD SessionHold::owner() const { return owner_ ? static_cast<DWORD>(*owner_) : 0; }

namespace {

struct Search {
    DWORD process;
    HWND found = nullptr;  ///< a disabled one only until an enabled one is found
};

/// Whether it is a window or a box, rather than a tooltip or a drop-down's list.
bool isForUsers(HWND window) {
    return IsWindowVisible(window) &&
           (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION &&
           !(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
}

BOOL CALLBACK look(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    if (processOf(window) != search.process || !isForUsers(window)) return TRUE;
    const bool enabled = IsWindowEnabled(window) != FALSE;
    if (enabled || !search.found) search.found = window;
    return !enabled;
}

/// Brings the window of another program to the front that its user would work in: the uppermost
/// enabled one, restored if it is minimised. False when it shows none.
bool raiseProgram(DWORD process) {
    Search search{process};
    if (process != 0) EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    if (!search.found) return false;
    AllowSetForegroundWindow(process);
    // Posted: the program may be waiting for an answer.
    if (IsIconic(search.found)) ShowWindowAsync(search.found, SW_RESTORE);
    // A box of a minimised window is hidden with it.
    HWND box = GetLastActivePopup(search.found);
    SetForegroundWindow(IsWindowVisible(box) ? box : search.found);
    return true;
}

std::wstring userName() {
    wchar_t name[UNLEN + 1] = {};
    DWORD size = ARRAYSIZE(name);
    return GetUserNameW(name, &size) ? name : L"";
}

std::wstring machineName() {
    DWORD size = 0;
    GetComputerNameExW(ComputerNamePhysicalDnsHostname, nullptr, &size);
    std::wstring name(size, L'\0');
    if (!GetComputerNameExW(ComputerNamePhysicalDnsHostname, name.data(), &size)) size = 0;
    name.resize(size);
    return name;
}

std::wstring nameOf(Files& files, const std::wstring& list) {
    // With its backslash, which the root of a drive needs.
    return holdName(files.identify(list.substr(0, list.rfind(L'\\') + 1)), list);
}

class Steps : public HoldSteps {
 public:
    Steps(SessionHold& session, HoldFile& file) : session_(session), file_(file) {}

    bool own() override { return session_.take(); }
    bool raiseOwner() override { return raiseProgram(session_.owner()); }
    HoldFileState takeFile(const ListHolder& us) override { return file_.take(us); }
    ListHolder fileHolder() override { return file_.holder(); }
    bool hasFile() override { return file_.isOpen(); }
    void pause() override {
        Sleep(kHoldPause);
        // COM has a window on this thread: messages that others send to it must not wait
        // (the WaitForSingleObject function).
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    }

 private:
    SessionHold& session_;
    HoldFile& file_;
};

/// Leaves the owner's window where it is.
class QuietSteps : public Steps {
 public:
    using Steps::Steps;
    bool raiseOwner() override { return true; }
};

}  // namespace

WinListHolds::WinListHolds(Files& files) : files_(files), us_{userName(), machineName()} {}

HoldAnswer WinListHolds::take(const std::wstring& list, const std::wstring& holdFile) {
    hold_.emplace(nameOf(files_, list), holdFile);
    Steps steps(hold_->session, hold_->file);
    return takeHold(steps, us_);
}

std::optional<ListHolder> WinListHolds::takeAgain() {
    if (!hold_) return std::nullopt;
    Steps steps(hold_->session, hold_->file);
    return renewal_.takeAgain(steps, us_);
}

std::optional<ListHolder> WinListHolds::whileFree(const std::wstring& list,
                                                  const std::wstring& holdFile,
                                                  const std::function<void()>& deed) {
    Hold hold(nameOf(files_, list), holdFile);
    QuietSteps steps(hold.session, hold.file);
    const HoldAnswer answer = takeHold(steps, us_);
    if (answer.kind == HoldAnswer::Kind::RaisedOther) return us_;
    if (answer.kind == HoldAnswer::Kind::HeldElsewhere) return answer.holder;
    deed();
    return std::nullopt;
}
