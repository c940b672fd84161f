#pragma once

#include "ports/settings.h"

/// Settings in HKEY_CURRENT_USER\Software\<application>\<section>, one REG_SZ value per key.
class RegistrySettings : public Settings {
 public:
    std::wstring read(const std::wstring& application, const std::wstring& section,
                      const std::wstring& key, const std::wstring& otherwise) override;
    void write(const std::wstring& application, const std::wstring& section,
               const std::wstring& key, const std::wstring& value) override;
};
