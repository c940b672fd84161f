#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "searchfolders/configurations.h"

// What the editing commands do to the tables. `count` is the number of directories being edited.

/// Adds a directory behind the `count` first ones, unless one of them is spelled alike, case
/// included. True when it was added. Raises 9 for the 201st.
bool addDirectory(Configuration& edited, int count, const std::wstring& path);

/// Whether the CAD application can have it among its search folders: it takes them as one text,
/// with semicolons between.
bool canBeSearchFolder(std::wstring_view path);

/// A copy of the directories being edited, to which those of a tree are added one by one.
struct TreeAddition {
    Configuration edited;
    int count;
    std::vector<std::wstring> leftOut = {};  ///< that can't be search folders
    bool complete = false;                   ///< all of the tree was met
    bool stopped = false;                    ///< by its user

    /// Raises 9 for the 201st.
    void add(const std::wstring& path);
};

enum class Removal {
    Selected,      ///< the selected directories only
    WithFollowers  ///< with them the entries right behind that begin with them, in any case
};

/// Removes directories; gives how many are left. `selected` answers for the lines of the list,
/// which count from 0.
int removeDirectories(Configuration& edited, int count, const std::function<bool(int)>& selected,
                      Removal removal);

/// Stores the edited directories under `name`: in the row of the one renamed, or of `name` itself
/// when none is, or else in the first free row, which then counts as one more. A blank name becomes
/// "Defaut_" and the number of configurations. Raises 9 when no row is free.
void storeEdited(Configurations& configs, std::wstring& name);

/// Removes the selected row by moving up the ones below; none is removed for row 0. A row moved
/// over a longer one keeps that one's last directories. Raises 9 when all 50 rows are in use.
void destroySelected(Configurations& configs);
