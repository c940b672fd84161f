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

class Steps : public HoldSteps {
 public:
    Steps(SessionClaim& claim, HoldFile& file) : claim_(claim), file_(file) {}

    bool own() override { return claim_.take(); }
    bool raiseOwner() override { return raiseProgram(claim_.owner()); }
    HoldFileState takeFile(const ListHolder& us) override { return file_.take(us); }
    ListHolder fileHolder() override { return file_.holder(); }
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

}  // namespace

HoldAnswer WinListHolds::take(const std::wstring& list, const std::wstring& holdFile) {
    // With its backslash, which the root of a drive needs.
    const std::wstring directory = list.substr(0, list.rfind(L'\\') + 1);
    claim_.emplace(holdName(files_.identify(directory), list));
    file_.emplace(holdFile);
    Steps steps(*claim_, *file_);
    return takeHold(steps, {userName(), machineName()});
}
