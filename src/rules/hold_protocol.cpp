#include "rules/hold_protocol.h"

#include <span>
#include <string_view>
#include <type_traits>

#include "common/bytes.h"
#include "common/numbers.h"
#include "common/text.h"
#include "rules/windows_files.h"

namespace {

constexpr int kOwnerTries = 10'000 / kHoldPause;
constexpr int kFileTries = 2'000 / kHoldPause;

bool ownInSession(HoldSteps& steps) {
    for (int i = 0; i < kOwnerTries; ++i) {
        if (steps.own()) return true;
        if (steps.raiseOwner()) break;
        steps.pause();
    }
    return false;
}

const HoldAnswer kHidden{.hidden = true};

/// The bytes of plain values.
template <class Value>
std::string_view bytesOf(std::span<const Value> values) {
    static_assert(std::has_unique_object_representations_v<Value>);
    return {reinterpret_cast<const char*>(values.data()), values.size_bytes()};
}

}  // namespace

HoldFileState holdFileState(std::uint32_t creating, std::uint32_t looking) {
    using namespace windows_error;
    if (creating == 0) return HoldFileState::Ours;
    if (looking == kSharingViolation) return HoldFileState::Theirs;
    // A file that is about to be deleted denies every access.
    if (creating == kSharingViolation || looking == kAccessDenied) return HoldFileState::Busy;
    return looking == 0 ? HoldFileState::Blocked : HoldFileState::Unusable;
}

HoldAnswer takeHold(HoldSteps& steps, const ListHolder& us) {
    if (!ownInSession(steps)) return {HoldAnswer::Kind::RaisedOther};
    HoldAnswer answer;
    for (int i = 0; i < kFileTries; ++i) {
        const HoldFileState state = steps.takeFile(us);
        if (state == HoldFileState::Ours || state == HoldFileState::Unusable) return {};
        if (state == HoldFileState::Blocked) return kHidden;
        answer = kHidden;
        if (state == HoldFileState::Theirs) {
            answer = {HoldAnswer::Kind::HeldElsewhere, steps.fileHolder()};
            // A file made a moment ago names nobody yet.
            const bool passing = answer.holder == us || answer.holder == ListHolder();
            if (!passing) break;
        }
        steps.pause();
    }
    return answer;
}

std::optional<ListHolder> HoldRenewal::takeAgain(HoldSteps& steps, const ListHolder& us) {
    if (steps.hasFile()) return std::nullopt;
    const HoldFileState state = steps.takeFile(us);
    if (state == HoldFileState::Ours) told_.reset();
    if (state != HoldFileState::Theirs) return std::nullopt;
    const ListHolder holder = steps.fileHolder();
    if (holder == us || holder == ListHolder() || holder == told_) return std::nullopt;
    return told_ = holder;
}

std::wstring holdName(const DirectoryId& directory, const std::wstring& list) {
    const bool directoriesAlike = directory == DirectoryId{directory.volume, {}};
    const std::size_t from = directoriesAlike ? 0 : list.find_last_of(L'\\') + 1;
    const std::wstring name = upperCase(std::wstring_view(list).substr(from));
    ContentIdentity all(bytesOf(std::span<const DirectoryId>(&directory, 1)));
    all.add(bytesOf(std::span<const wchar_t>(name)));
    return L"Tarnwick-" + decimal(static_cast<std::int64_t>(all.hash()));
}
