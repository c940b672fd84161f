#pragma once

#include <optional>

#include "ports/list_holds.h"
#include "win32/process/hold_file.h"
#include "win32/process/session_claim.h"

class Files;

/// Holds on lists, by a claim in the user's session and a file beside the list.
class WinListHolds : public ListHolds {
 public:
    explicit WinListHolds(Files& files);
    HoldAnswer take(const std::wstring& list, const std::wstring& holdFile) override;
    std::optional<ListHolder> takeAgain() override;
    std::optional<ListHolder> whileFree(const std::wstring& list, const std::wstring& holdFile,
                                        const std::function<void()>& deed) override;

 private:
    struct Hold {
        Hold(const std::wstring& name, const std::wstring& holdFile)
            : claim(name), file(holdFile) {}

        SessionClaim claim;
        // Goes first: who gets the claim then finds no file any more.
        HoldFile file;
    };

    Files& files_;
    std::optional<Hold> hold_;
    ListHolder us_;
    HoldRenewal renewal_;
};
