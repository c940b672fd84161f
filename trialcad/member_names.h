#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "member.h"

/// The DISPIDs of one kind of object, and how clients last spelt the name of each.
class MemberNames {
 public:
    MemberNames(std::span<const Member> members, DISPID first);

    /// The DISPID of a name, matched without regard to case. Notes the spelling.
    std::optional<DISPID> lookUp(std::wstring_view name);

    /// Null for a DISPID that was never given out.
    const Member* find(DISPID id) const;

    const std::wstring& spelling(DISPID id) const;

 private:
    std::span<const Member> members_;
    DISPID first_;
    std::vector<std::wstring> spellings_;
};
