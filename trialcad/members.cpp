#include "members.h"

#include "common/text.h"

MemberNames::MemberNames(std::span<const Member> members, DISPID first)
    : members_(members), first_(first) {
    for (const Member& member : members) spellings_.emplace_back(member.name);
}

std::optional<DISPID> MemberNames::lookUp(std::wstring_view name) {
    for (size_t i = 0; i < members_.size(); ++i) {
        if (!equalIgnoringCase(members_[i].name, name)) continue;
        spellings_[i] = name;
        return first_ + static_cast<DISPID>(i);
    }
    return std::nullopt;
}

const Member* MemberNames::find(DISPID id) const {
    if (id < first_ || id >= first_ + static_cast<DISPID>(members_.size())) return nullptr;
    return &members_[static_cast<size_t>(id - first_)];
}

const std::wstring& MemberNames::spelling(DISPID id) const {
    return spellings_[static_cast<size_t>(id - first_)];
}
