#pragma once

#include <string>
#include <vector>

#include "ports/machine.h"

class WinClock : public Clock {
 public:
    std::int64_t now() const override;
    std::int64_t ticks() const override;
    LocalTime local(std::int64_t time) const override;
};

/// Settings in HKEY_CURRENT_USER\Software\<application>\<section>, one REG_SZ value per key.
class RegistrySettings : public Settings {
 public:
    std::wstring read(const std::wstring& application, const std::wstring& section,
                      const std::wstring& key, const std::wstring& otherwise) override;
    void write(const std::wstring& application, const std::wstring& section,
               const std::wstring& key, const std::wstring& value) override;
};

/// The program's own directory, without a trailing backslash.
std::wstring programDirectory();

/// The files that the command line names after the program, by their full paths: relative to the
/// current directory, short names made long. What is no path stays as it is.
std::vector<std::wstring> namedFiles();

class WinPower : public Power {
 public:
    /// Lasts as long as the calling thread, at most.
    void keepAwake(bool awake) override;
};
