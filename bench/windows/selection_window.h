#pragma once

#include <filesystem>

#include "selection/selection_window.h"
#include "stage.h"

/// The selection window, shown, on a directory and all kinds of documents.
class SelectionWindow {
 public:
    SelectionWindow(const std::filesystem::path& directory, bool withSubdirectories);

    Form1& form() { return *form_; }
    int lineCount();

 private:
    Stage stage_;
    std::unique_ptr<Form1> form_;
};
