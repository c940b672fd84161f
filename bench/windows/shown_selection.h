#pragma once

#include <filesystem>

#include "selection/selection_window.h"
#include "stage.h"

/// The selection window, shown, on a directory and all kinds of documents.
class ShownSelection {
 public:
    ShownSelection(const std::filesystem::path& directory, bool withSubdirectories);

    SelectionWindow& form() { return *form_; }
    int lineCount();

 private:
    Stage stage_;
    std::unique_ptr<SelectionWindow> form_;
};
