#pragma once

#include <map>
#include <optional>
#include <string>

namespace driver {

/// The program's per-user settings. While this object lives the program finds none but the test's
/// own; the user's own are put back afterwards.
class Settings {
 public:
    Settings();
    ~Settings();
    Settings(const Settings&) = delete;
    Settings& operator=(const Settings&) = delete;

    std::optional<std::string> get(const std::string& application, const std::string& section,
                                   const std::string& key) const;
    void set(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) const;

    /// Every value there is, a line each.
    std::string describe() const;

 private:
    using Values = std::map<std::wstring, std::wstring>;  // by "application\section\key"
    static Values readAll();
    static void removeAll();

    Values kept_;
};

}  // namespace driver
