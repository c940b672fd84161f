#pragma once

#include <string>

#include "ports/controls.h"

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
