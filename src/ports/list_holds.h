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

/// The answer to taking hold of a list.
struct HoldAnswer {
    enum class Kind {
        Held,           ///< it is ours
        RaisedOther,    ///< another program of this user has it; its window is in front now
        HeldElsewhere,  ///< it is open in another Windows session or on another machine
    };
    Kind kind = Kind::Held;
    ListHolder holder = {};  ///< who has a list held elsewhere; empty when unknown
    bool hidden = false;     ///< it is ours, but other users and machines can't see that
};

/// One list, one program: two that worked on a list would each save over the other's marks.
class ListHolds {
 public:
    virtual ~ListHolds() = default;

    /// Takes hold of a list file, which may not exist yet, until the program ends, however it ends.
    /// `holdFile` beside the list tells other users and machines; where it can't be written the
    /// list is held without it. Raises 70 or 76 when the list's directory can't be opened.
    virtual HoldAnswer take(const std::wstring& list, const std::wstring& holdFile) = 0;

    /// Takes the hold file again when it was lost, as with the network. If another program has it
    /// by now, returns its user, once.
    virtual std::optional<ListHolder> takeAgain() = 0;

    /// Does something to another list while no other program has that open. Otherwise does nothing
    /// and returns who has it. Raises what `take` and the deed raise.
    virtual std::optional<ListHolder> whileFree(const std::wstring& list,
                                                const std::wstring& holdFile,
                                                const std::function<void()>& deed) = 0;
};
