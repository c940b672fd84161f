#include "win32/process/win_list_holds.h"

#include <lmcons.h>

#include "win32/process/raise_program.h"

namespace {

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
    Steps(SessionClaim& claim, HoldFile& file) : claim_(claim), file_(file) {}

    bool own() override { return claim_.take(); }
    bool raiseOwner() override { return raiseProgram(claim_.owner()); }
    HoldFileState takeFile(const ListHolder& us) override { return file_.take(us); }
    ListHolder fileHolder() override { return file_.holder(); }
    bool hasFile() override { return file_.isOpen(); }
    void pause() override {
        Sleep(kHoldPause);
        // The thread has a window of COM's: what others send to it must not wait
        // (the WaitForSingleObject function).
        MSG message;
        PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
    }

 private:
    SessionClaim& claim_;
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
    Steps steps(hold_->claim, hold_->file);
    return takeHold(steps, us_);
}

std::optional<ListHolder> WinListHolds::takeAgain() {
    if (!hold_) return std::nullopt;
    Steps steps(hold_->claim, hold_->file);
    return renewal_.takeAgain(steps, us_);
}

std::optional<ListHolder> WinListHolds::whileFree(const std::wstring& list,
                                                  const std::wstring& holdFile,
                                                  const std::function<void()>& deed) {
    Hold hold(nameOf(files_, list), holdFile);
    QuietSteps steps(hold.claim, hold.file);
    const HoldAnswer answer = takeHold(steps, us_);
    if (answer.kind == HoldAnswer::Kind::RaisedOther) return us_;
    if (answer.kind == HoldAnswer::Kind::HeldElsewhere) return answer.holder;
    deed();
    return std::nullopt;
}
