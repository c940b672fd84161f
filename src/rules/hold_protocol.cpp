#include "rules/hold_protocol.h"

#include <span>
#include <type_traits>

#include "common/letter_case.h"
#include "common/numbers.h"
#include "rules/file_error.h"

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

HoldAnswer heldElsewhere(const ListHolder& holder) {
    return {HoldAnswer::Kind::HeldElsewhere, holder};
}

/// Fowler, Noll and Vo's hash (FNV-1a, 64 bits).
class Hash {
 public:
    template <class Value>
    void add(std::span<const Value> values) {
        static_assert(std::has_unique_object_representations_v<Value>);
        for (const std::byte byte : std::as_bytes(values)) {
            hash_ = (hash_ ^ static_cast<std::uint64_t>(byte)) * 0x100000001B3;
        }
    }
    std::uint64_t value() const { return hash_; }

 private:
    std::uint64_t hash_ = 0xCBF29CE484222325;
};

}  // namespace

HoldFileState holdFileState(std::uint32_t creating, std::uint32_t looking) {
    using namespace windows_error;
    if (creating == 0) return HoldFileState::Ours;
    if (looking == kSharingViolation) return HoldFileState::Theirs;
    // A file that is about to go denies every access.
    if (creating == kSharingViolation || looking == kAccessDenied) return HoldFileState::Busy;
    return HoldFileState::Unusable;
}

HoldAnswer takeHold(HoldSteps& steps, const ListHolder& us) {
    if (!ownInSession(steps)) return {HoldAnswer::Kind::RaisedOther};
    HoldAnswer answer;
    for (int i = 0; i < kFileTries; ++i) {
        const HoldFileState state = steps.takeFile(us);
        if (state == HoldFileState::Ours || state == HoldFileState::Unusable) return {};
        answer = {};
        if (state == HoldFileState::Theirs) {
            answer = heldElsewhere(steps.fileHolder());
            // Nobody is named yet in a file that was made a moment ago.
            const bool passing = answer.holder == us || answer.holder == ListHolder();
            if (!passing) break;
        }
        steps.pause();
    }
    return answer;
}

std::wstring holdName(const DirectoryId& directory, const std::wstring& list) {
    const bool directoriesAlike = directory == DirectoryId{directory.volume, {}};
    const std::size_t from = directoriesAlike ? 0 : list.find_last_of(L'\\') + 1;
    const std::wstring name = upperCase(std::wstring_view(list).substr(from));
    Hash hash;
    hash.add(std::span(&directory, 1));
    hash.add(std::span(name));
    return L"Tarnwick-" + decimal(static_cast<std::int64_t>(hash.value()));
}
