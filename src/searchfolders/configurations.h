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

/// A configuration: entry 0 is its name, entries 1 to 200 are its directories, up to an empty one
/// or the end of the table. A configuration of 200 can be read, shown, edited and saved, but not
/// made the CAD application's search folders (joinFolders).
using Configuration = CheckedTable<std::wstring, kMostDirectories + 1, kDirectoriesLimit>;

/// The named lists of directories that can become the CAD application's search folders. They
/// outlive the window that edits them. Reaching past a table raises 9.
struct Configurations {
    /// Row 0 mirrors the CAD application's own setting, "En Cours"; a row without a name is free.
    CheckedTable<Configuration, kMostConfigurations + 1, kConfigurationsLimit> rows;
    int last = 0;      ///< the last row in use
    int selected = 0;  ///< the row selected when that was last looked at

    Configuration edited;  ///< the directories being edited; entry 0 stays empty
    std::wstring renamed;  ///< the name before renaming; empty when creating or modifying
};

/// Empties the entries from `first` on.
void clearFrom(Configuration& configuration, int first);

/// The first empty entry from `first` on, 201 when there is none.
int firstEmpty(const Configuration& configuration, int first);

/// How many directories there are before the first empty entry.
inline int directoryCount(const Configuration& configuration) {
    return firstEmpty(configuration, 1) - 1;
}

/// Copies the directories up to the first empty entry over those of `to`, whose others become
/// empty.
void copyDirectories(const Configuration& from, Configuration& to);

// The directories of a configuration as the CAD application has them: one text, with semicolons.

/// Stores the parts of a text between semicolons, even empty ones, from entry 1 on; nothing for an
/// empty text. Later entries are left as they are. Raises 9 past 200 parts.
void splitFolders(std::wstring_view folders, Configuration& configuration);

/// The directories up to the first empty entry, with semicolons in between. Raises 9 when all 200
/// entries are in use, since it finds no empty one.
std::wstring joinFolders(const Configuration& configuration);

// What the editing commands do to the tables. `count` is the number of directories being edited.

/// Adds a directory after the first `count`, unless one of them has the same spelling, case
/// included. True when it was added. Raises 9 for the 201st.
bool addDirectory(Configuration& edited, int count, const std::wstring& path);

/// Whether a directory can be one of the CAD application's search folders, which are separated by
/// semicolons.
bool canBeSearchFolder(std::wstring_view path);

/// A copy of the directories being edited, to which those of a tree are added one by one.
struct TreeAddition {
    Configuration edited;
    int count;
    std::vector<std::wstring> leftOut = {};  ///< directories that can't be search folders
    bool complete = false;                   ///< all of the tree has been added
    bool stopped = false;                    ///< by the user

    /// Raises 9 for the 201st.
    void add(const std::wstring& path);
};

enum class Removal {
    Selected,      ///< the selected directories only
    WithFollowers  ///< and the entries right after each that begin with it, in any case
};

/// Removes directories; returns how many are left. `selected` answers for the lines of the list,
/// which count from 0.
int removeDirectories(Configuration& edited, int count, const std::function<bool(int)>& selected,
                      Removal removal);

/// Stores the edited directories under `name`: in the row of the configuration being renamed, or of
/// `name` itself, or else in the first free row, which adds a configuration. A blank name becomes
/// "Defaut_" and the number of configurations. Raises 9 when no row is free.
void storeEdited(Configurations& configs, std::wstring& name);

/// Removes the selected row by moving up the ones below, unless it is row 0. A row moved over a
/// longer one keeps that one's last directories. Raises 9 when all 50 rows are in use.
void destroySelected(Configurations& configs);

// The configuration file has, for each configuration, a header line with the marker
// "Configuration:" and the name, then a line for each directory.

/// Reads the text of a configuration file into the rows from 1 on, and sets the last one in use.
/// Lines before the first header go into row 0; blank lines and comments are directories like any
/// other line. Raises 9 for a 51st header or a 201st line below one; the error names the line of
/// the file.
void parseConfigurationFile(std::wstring_view text, Configurations& configurations,
                            const std::wstring& file);

/// The text for all named rows but row 0. Empty entries are skipped.
std::wstring formatConfigurationFile(const Configurations& configurations);

/// Clears the rows from 1 on and reads the configuration file into them. Returns its identity,
/// nothing when there is no file. Raises 9, and 70 or 75 when the file can't be read.
std::optional<ContentIdentity> readConfigurations(Configurations& configurations,
                                                  const std::wstring& file,
                                                  FileSystemObject& fileSystem, Files& files);
