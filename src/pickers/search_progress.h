#pragma once

#include <chrono>
#include <string>

#include "ports/controls.h"

/// Lets something happen a few times per second at most.
class Pulse {
 public:
    bool due() {
        constexpr std::chrono::milliseconds kInterval(250);
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < kInterval) return false;
        last_ = now;
        return true;
    }

 private:
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};

/// While it lives a label says that a search goes on: from its first moment, when there is nothing
/// to be counted yet.
class SearchSign {
 public:
    explicit SearchSign(Control& label) : label_(label), before_(label.text()) {
        label_.setText(L"Recherche…");
        label_.repaint();
    }
    ~SearchSign() { label_.setText(before_); }
    SearchSign(const SearchSign&) = delete;
    SearchSign& operator=(const SearchSign&) = delete;

 private:
    Control& label_;
    std::wstring before_;
};
