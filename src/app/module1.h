#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/automation.h"
#include "searchfolders/configurations.h"
#include "worklist/state_labels.h"
#include "worklist/work_list.h"

/// The saved places of the windows, in twips.
struct WindowPlace {
    std::int16_t top = 0;
    std::int16_t left = 0;
};

/// The windows whose places are kept, in the order of PosFenetre.
enum class PlacedWindow { Selection, ExistingList, Tracking, SearchFolders };

/// The program-wide variables. Start-up sets them; the windows share them.
struct Module1 {
    std::wstring VersionMajeure;
    std::wstring VersionMineure;
    std::wstring DateVersion;

    std::array<WindowPlace, 4> PosFenetre;
    WindowPlace& place(PlacedWindow window) { return PosFenetre[static_cast<std::size_t>(window)]; }

    std::wstring RepAppli;          ///< the program's directory, no trailing backslash
    std::wstring FichListe;         ///< the list file
    std::wstring FichConfig;        ///< the configuration file
    std::wstring LibConfiguration;  ///< what marks a configuration's name in that file
    StateLabels labels;

    ObjectPtr SwApp;             ///< the CAD application, kept for the whole run
    ObjectPtr SwDoc;             ///< the document opened last, null when that failed
    std::wstring NomDocCourant;  ///< full path of the open document, empty when none is
    std::wstring NomVersionSw;   ///< the release's name, empty when unknown
    std::wstring RepTravailSw;   ///< the CAD application's working directory
    ObjectPtr Fso;               ///< the file-system object

    bool NouvelleListe = false;   ///< the user declined the existing list
    bool ReprendreListe = false;  ///< the user accepted it

    WorkList liste;
    bool FenetreSuiviPrete = false;  ///< the tracking window has its list

    Configurations configs;
};
