#pragma once

#include <map>
#include <utility>
#include <vector>

#include "ports/list_holds.h"

/// Notes which lists are asked for, by the files that tell of the holds, and answers as told.
struct FakeListHolds : ListHolds {
    HoldAnswer answer;
    std::map<std::wstring, ListHolder> others;  ///< who has which other list open
    std::optional<ListHolder> takenBy;          ///< while the hold was lost
    std::vector<std::wstring> asked;

    HoldAnswer take(const std::wstring&, const std::wstring& holdFile) override {
        asked.push_back(holdFile);
        return answer;
    }
    std::optional<ListHolder> takeAgain() override { return std::exchange(takenBy, std::nullopt); }
    std::optional<ListHolder> whileFree(const std::wstring& list, const std::wstring& holdFile,
                                        const std::function<void()>& deed) override {
        asked.push_back(holdFile);
        if (others.contains(list)) return others[list];
        deed();
        return std::nullopt;
    }
};
