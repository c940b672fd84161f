#pragma once

#include <map>
#include <tuple>

#include "common/text.h"
#include "ports/machine.h"

/// Settings in memory, by application, section and key, keys without regard to case.
struct FakeSettings : Settings {
    std::map<std::tuple<std::wstring, std::wstring, std::wstring>, std::wstring> entries;

    std::wstring read(const std::wstring& application, const std::wstring& section,
                      const std::wstring& key, const std::wstring& otherwise) override {
        const auto entry = entries.find({application, section, upperCase(key)});
        return entry == entries.end() ? otherwise : entry->second;
    }
    void write(const std::wstring& application, const std::wstring& section,
               const std::wstring& key, const std::wstring& value) override {
        entries[{application, section, upperCase(key)}] = value;
    }
};
