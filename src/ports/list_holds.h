#pragma once

#include <functional>
#include <optional>
#include <string>

/// Who has a list open.
struct ListHolder {
    std::wstring user;
    std::wstring machine;
    bool operator==(const ListHolder&) const = default;
};

/// What asking for a list gave.
struct HoldAnswer {
    enum class Kind {
        Held,           ///< it is ours
        RaisedOther,    ///< this user's program has it already; its window is in front now
        HeldElsewhere,  ///< it is open in another session or on another machine
    };
    Kind kind = Kind::Held;
    ListHolder holder = {};  ///< of a list held elsewhere; empty when that can't be told
    bool hidden = false;     ///< of one that is ours: other users and machines can't be told
};

/// One list, one program: two that work on the same list would each save over the other's marks.
class ListHolds {
 public:
    virtual ~ListHolds() = default;

    /// Takes hold of a list file, whether it is there or not, for as long as this object lives: a
    /// hold never outlives its program. `holdFile` beside it tells other users and machines; where
    /// it can't be written the list is held without. Raises 70 or 76 when the list's directory
    /// can't be opened.
    virtual HoldAnswer take(const std::wstring& list, const std::wstring& holdFile) = 0;

    /// Takes the hold file again when it was lost, as with the network; a program that has it by
    /// now is returned, once.
    virtual std::optional<ListHolder> takeAgain() = 0;

    /// Does something to another list while no other program has that open; who has it is returned
    /// otherwise, and nothing is done. Raises what `take` and the deed raise.
    virtual std::optional<ListHolder> whileFree(const std::wstring& list,
                                                const std::wstring& holdFile,
                                                const std::function<void()>& deed) = 0;
};
