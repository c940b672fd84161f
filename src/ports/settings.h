#pragma once

#include <string>

/// The per-user settings store: one text per application, section and key. Keys are matched
/// without regard to case.
class Settings {
 public:
    virtual ~Settings() = default;

    /// The stored text, or `otherwise` when there is no such entry.
    virtual std::wstring read(const std::wstring& application, const std::wstring& section,
                              const std::wstring& key, const std::wstring& otherwise) = 0;

    /// Creates or replaces the entry. Raises 75 when the store refuses it.
    virtual void write(const std::wstring& application, const std::wstring& section,
                       const std::wstring& key, const std::wstring& value) = 0;
};
