// Documents from elsewhere: a file that names them, files and directories dropped on the window.

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "pickers/pickers.h"
#include "ports/dialogs.h"
#include "ports/machine.h"
#include "ports/search.h"
#include "selection/selection_window.h"

namespace {

constexpr wchar_t kUnchanged[] = L"\r\nLa liste reste comme elle était.";

std::wstring notImportedText(const std::wstring& problem) {
    return L"L'importation n'a pas eu lieu.\r\n" + problem + kUnchanged;
}

MessageBoxContent serversBox(const std::vector<std::wstring>& servers) {
    // One after the other: with a line for each the buttons could be below the screen.
    std::wstring names;
    for (const std::wstring& server : servers) {
        names += (names.empty() ? L"\\\\" : L", \\\\") + server;
    }
    return {.text = L"Des documents sont sur d'autres serveurs :\r\n" + names +
                    L"\r\nLes y chercher ? Ces serveurs sauront qui le demande.",
            .buttons = MessageBoxContent::Buttons::YesNo,
            .icon = MessageBoxContent::Icon::Warning,
            .defaultButton = 2};
}

const wchar_t* reason(Presence why) {
    switch (why) {
        case Presence::NoDocument:
        case Presence::Directory:
            return L"n'est pas un document SolidWorks";
        case Presence::OutOfReach:
            return L"inaccessible";
        case Presence::Refused:
            return L"serveur non interrogé";
        default:
            return L"introuvable";
    }
}

/// Enough of a line to find it in its file: most paths are whole (MAX_PATH).
std::wstring shownLine(const std::wstring& text) {
    constexpr std::size_t kLongest = 260;
    const std::wstring line = text.substr(0, text.find_first_of(L"\r\n"));
    return line.size() <= kLongest ? line : line.substr(0, kLongest) + L"…";
}

/// What the user is told after an import; empty when each line became a document.
std::wstring remainsText(const ImportRemains& remains) {
    std::wstring text;
    if (remains.leftOut == 1) text += L"1 ligne laissée de côté :";
    if (remains.leftOut > 1) text += decimal(remains.leftOut) + L" lignes laissées de côté :";
    for (const auto& line : remains.first) {
        text += L"\r\n" + shownLine(line.text) + L" : " + reason(line.why);
    }
    const int more = remains.leftOut - static_cast<int>(remains.first.size());
    if (more > 0) text += L"\r\net " + decimal(more) + L" de plus";
    if (remains.repeated == 0) return text;
    if (!text.empty()) text += L"\r\n";
    return text + decimal(remains.repeated) +
           (remains.repeated == 1 ? L" ligne déjà dans la liste." : L" lignes déjà dans la liste.");
}

}  // namespace

void SelectionWindow::Importer_Click() {
    const OpenQuestion question{.title = L"Importer une liste",
                                .kinds = {{L"Textes, tableaux CSV et listes", L"*.txt;*.csv;*.lst"},
                                          {L"Tous les fichiers", L"*.*"}}};
    std::optional<std::wstring> file;
    try {
        file = platform_.fileDialogs.askWhatToOpen(question);
    } catch (const RuntimeError& error) {
        platform_.messageBoxes.warn(notImportedText(error.text));
    }
    if (file) importDocuments([&](DocumentImport& import) { return import.gatherFile(*file); });
}

void SelectionWindow::Form_Drop() {
    Pulse pulse;
    importDocuments([&](DocumentImport& import) {
        return import.gatherDropped(window_->droppedPaths(), [&](int documents) {
            if (!pulse.due()) return;
            cptfichier.setText(decimal(documents));
            cptfichier.repaint();
        });
    });
}

void SelectionWindow::importDocuments(const ImportStep& gather) {
    DocumentImport import(platform_.search);
    if (!completes(import, gather)) return;
    const auto servers = import.foreignServers();
    const auto mayAsk = [&] {
        return platform_.messageBoxes.show(serversBox(servers)) == MessageBoxes::Answer::Yes;
    };
    if (!servers.empty() && !mayAsk()) import.leaveOutServers(servers);
    if (!completes(import, [](DocumentImport& looking) { return looking.look(); })) return;

    const bool any = listDocuments(import.takeDocuments());
    std::wstring text = remainsText(import.remains());
    if (!any) {
        text += (text.empty() ? L"Aucun document à importer." : L"") + std::wstring(kUnchanged);
    }
    if (!text.empty()) platform_.messageBoxes.warn(text);
}

bool SelectionWindow::completes(DocumentImport& import, const ImportStep& step) {
    bool stopped = false;
    DocumentImport::End end;
    {
        const Searching searching(platform_.search.watch, *this, SearchKind::Documents);
        const SearchSign sign(Label4);
        end = step(import);
        stopped = searching.stopped();
    }
    cptfichier.setText(decimal(found_.count()));
    if (end == DocumentImport::End::Complete) return true;
    if (end == DocumentImport::End::Refused) {
        platform_.messageBoxes.warn(notImportedText(import.problem()));
    } else if (stopped && listDocuments(import.takeDocuments())) {
        platform_.messageBoxes.warn(kIncompleteList);
    } else if (stopped) {
        platform_.messageBoxes.warn(std::wstring(L"Importation interrompue.") + kUnchanged);
    }
    return false;
}

bool SelectionWindow::listDocuments(std::vector<std::wstring> documents) {
    if (documents.empty()) return false;
    found_.take(std::move(documents));
    imported_ = true;
    cptfichier.setText(decimal(found_.count()));
    List1.fill(NNiveau.levels(), [](int) { return true; });
    List1_Click();
    return true;
}
