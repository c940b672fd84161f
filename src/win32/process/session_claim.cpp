#include "win32/process/session_claim.h"

SessionClaim::SessionClaim(const std::wstring& name)
    : mutex_(CreateMutexW(nullptr, FALSE, (L"Local\\" + name).c_str())),
      section_(CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(LONG),
                                  (L"Local\\" + name + L"-programme").c_str())) {
    if (!section_) return;
    owner_.reset(
        static_cast<LONG*>(MapViewOfFile(section_.get(), FILE_MAP_WRITE, 0, 0, sizeof(LONG))));
}

SessionClaim::~SessionClaim() {
    if (!taken_) return;
    if (owner_) InterlockedExchange(owner_.get(), 0);
    ReleaseMutex(mutex_.get());
}

bool SessionClaim::take() {
    if (!mutex_) return true;
    const DWORD result = WaitForSingleObject(mutex_.get(), 0);
    taken_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
    if (taken_ && owner_) {
        InterlockedExchange(owner_.get(), static_cast<LONG>(GetCurrentProcessId()));
    }
    return taken_;
}

DWORD SessionClaim::owner() const { return owner_ ? static_cast<DWORD>(*owner_) : 0; }
