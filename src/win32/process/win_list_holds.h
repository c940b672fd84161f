#pragma once

#include <optional>

#include "ports/list_holds.h"
#include "win32/process/hold_file.h"
#include "win32/process/session_claim.h"

class Files;

/// Holds on lists, by a claim in the user's session and a file beside the list.
class WinListHolds : public ListHolds {
 public:
    explicit WinListHolds(Files& files) : files_(files) {}
    HoldAnswer take(const std::wstring& list, const std::wstring& holdFile) override;

 private:
    Files& files_;
    std::optional<SessionClaim> claim_;
    // Goes first: who gets the claim then finds no file any more.
    std::optional<HoldFile> file_;
};
