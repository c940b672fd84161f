#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <vector>

#include "ports/dialogs.h"

/// Records every box and answers from a queue; a Yes/No box without an answer fails the test.
struct FakeMessageBoxes : MessageBoxes {
    std::vector<MessageBoxContent> shown;
    std::deque<Answer> answers;
    std::function<void()> whileShown = [] {};

    Answer show(const MessageBoxContent& box) override {
        whileShown();
        shown.push_back(box);
        if (!answers.empty()) {
            const Answer answer = answers.front();
            answers.pop_front();
            return answer;
        }
        if (box.buttons == MessageBoxContent::Buttons::Ok) return Answer::Ok;
        throw std::logic_error("a question was asked that the test did not expect");
    }
};
