#pragma once

#include <vector>

#include "ports/list_holds.h"

/// Notes which lists are asked for, by the files that tell of the holds, and answers as told.
struct FakeListHolds : ListHolds {
    HoldAnswer answer;
    std::vector<std::wstring> asked;

    HoldAnswer take(const std::wstring&, const std::wstring& holdFile) override {
        asked.push_back(holdFile);
        return answer;
    }
};
