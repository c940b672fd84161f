#pragma once

#include <map>
#include <optional>
#include <string>

namespace driver {

/// The program's settings. While this object lives the program finds only those that the test
/// writes; afterwards the user's own are restored.
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

    /// All values, one on each line.
    std::string describe() const;

 private:
    using Values = std::map<std::wstring, std::wstring>;  // by "application\section\key"
    static Values readAll();
    static void removeAll();

    Values kept_;
};

}  // namespace driver
