#pragma once

#include <string>

#include "common/checked_table.h"

inline constexpr int kMostConfigurations = 50;
inline constexpr int kMostDirectories = 200;
inline constexpr wchar_t kConfigurationsLimit[] = L"Configurations : 50 au plus.";
inline constexpr wchar_t kDirectoriesLimit[] = L"Répertoires d'une configuration : 200 au plus.";

/// A configuration: entry 0 its name, entries 1 to 200 its directories. An empty one ends them.
using Configuration = CheckedTable<std::wstring, kMostDirectories + 1, kDirectoriesLimit>;

/// The named lists of directories that can become the CAD application's search folders. They
/// outlive the window that edits them. Reaching past a table raises 9.
struct Configurations {
    /// Row 0 mirrors the CAD application's own setting, "En Cours"; a row without a name is free.
    CheckedTable<Configuration, kMostConfigurations + 1, kConfigurationsLimit> rows;
    int last = 0;      ///< the last row in use
    int selected = 0;  ///< the row last found selected

    Configuration edited;  ///< the directories being edited; entry 0 stays empty
    std::wstring renamed;  ///< the name before renaming; empty when creating or modifying
};

/// Empties the entries from `first` on.
void clearFrom(Configuration& configuration, int first);

/// The first empty entry from `first` on, 201 when there is none.
int firstEmpty(const Configuration& configuration, int first);

/// How many directories stand before the first empty entry.
inline int directoryCount(const Configuration& configuration) {
    return firstEmpty(configuration, 1) - 1;
}

/// Copies the directories up to the first empty entry over those of `to`; empties its others.
void copyDirectories(const Configuration& from, Configuration& to);
