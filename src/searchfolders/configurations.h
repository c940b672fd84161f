#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/bytes.h"
#include "common/checked_table.h"

class FileSystemObject;
class Files;

inline constexpr int kMostConfigurations = 50;
inline constexpr int kMostDirectories = 200;
inline constexpr wchar_t kConfigurationsLimit[] = L"Configurations : 50 au plus.";
inline constexpr wchar_t kDirectoriesLimit[] = L"Répertoires d'une configuration : 200 au plus.";

/// A configuration: entry 0 its name, entries 1 to 200 its directories. An empty one ends them, or
/// the end of the table: one of 200 is read, shown, edited and saved as any other. Only the CAD
/// application's search folders can't be 200 (joinFolders).
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

// The directories of a configuration as the CAD application has them: one text, with semicolons.

/// Stores the parts of a text between semicolons from entry 1 on, empty parts too; nothing for an
/// empty text. The entries behind are left as they are. Raises 9 past 200 parts.
void splitFolders(std::wstring_view folders, Configuration& configuration);

/// The directories up to the first empty one, with semicolons between. Raises 9 when all 200
/// entries are in use: there is no end to find.
std::wstring joinFolders(const Configuration& configuration);

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

// The configuration file: per configuration a header line, the marker "Configuration:" and the
// name, then one line for each directory.

/// Reads the text of a configuration file into the rows from 1 on, the last of which it notes.
/// Lines before the first header go into row 0; blank and comment lines are directories like any
/// other line. Raises 9 at a 51st header, or at a 201st line under one header, and names that line
/// of the file.
void parseConfigurationFile(std::wstring_view text, Configurations& configurations,
                            const std::wstring& file);

/// The text for all named rows but row 0. Empty entries are left out, which closes holes.
std::wstring formatConfigurationFile(const Configurations& configurations);

/// Clears the rows from 1 on and reads the configuration file into them; nothing when there is
/// none. Raises 9, and 70 or 75 when the file can't be read.
std::optional<ContentIdentity> readConfigurations(Configurations& configurations,
                                                  const std::wstring& file,
                                                  FileSystemObject& fileSystem, Files& files);
