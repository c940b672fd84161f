#pragma once

#include <string_view>
#include <vector>

class ComboBox;
class Files;

/// A drop-down of the drives present, each shown as "c:".
class DrivePicker {
 public:
    DrivePicker(ComboBox& box, Files& files) : box_(box), files_(files) {}

    /// Lists the drives; none is chosen yet.
    void fill();

    /// Chooses the drive that a path begins with; none when it isn't present. True when that is
    /// another one than before.
    bool setDrive(std::wstring_view path);

    /// The chosen drive's letter, 0 for none.
    wchar_t drive() const;

 private:
    ComboBox& box_;
    Files& files_;
    std::vector<wchar_t> letters_;
};
