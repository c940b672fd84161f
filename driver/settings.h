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

    std::optional<std::string> Get(const std::string& application, const std::string& section,
                                   const std::string& key) const;
    void Set(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) const;

    /// Every value there is, a line each.
    std::string Describe() const;

 private:
    using Values = std::map<std::wstring, std::wstring>;  // by "application\section\key"
    static Values ReadAll();
    static void RemoveAll();

    Values kept_;
};

}  // namespace driver
