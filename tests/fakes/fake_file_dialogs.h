#pragma once

#include <optional>
#include <vector>

#include "ports/dialogs.h"

/// Records what is asked, and always has the same answer.
struct FakeFileDialogs : FileDialogs {
    std::vector<SaveQuestion> asked;
    std::vector<OpenQuestion> askedToOpen;
    std::optional<std::wstring> answer;

    std::optional<std::wstring> askWhereToSave(const SaveQuestion& question) override {
        asked.push_back(question);
        return answer;
    }
    std::optional<std::wstring> askWhatToOpen(const OpenQuestion& question) override {
        askedToOpen.push_back(question);
        return answer;
    }
};
