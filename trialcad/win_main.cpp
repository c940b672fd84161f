#include <windows.h>

#include <commctrl.h>
#include <shellapi.h>
#include <string>
#include <vector>

#include "application_object.h"
#include "call_desk.h"
#include "document_file.h"
#include "faults.h"
#include "journal.h"
#include "options.h"
#include "registration.h"
#include "session.h"
#include "session_window.h"
#include "text.h"

namespace {

constexpr int kNormalEnd = 0;
constexpr int kNotRegistered = 1;
constexpr int kWrongOptions = 2;
constexpr DISPID kFirstOfApplication = 0x101;
constexpr wchar_t kOptionHelp[] =
    L"\n\nOptions :\n"
    L"--journal FICHIER\n--working-directory RÉPERTOIRE\n--revision TEXTE\n"
    L"--search-folders \"A;B\"\n--title plain|bracket|none\n--fail MÉTHODE[:N]\n"
    L"--busy MÉTHODE:MS\n--delay MÉTHODE:MS\n--documents "
    L"FICHIER\n--hidden\n--hide-endings\n--pid-only";

/// COM on this thread, for the life of this object.
struct Apartment {
    Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE); }
    ~Apartment() { CoUninitialize(); }
};

std::vector<std::wstring> commandLine() {
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> arguments(words + 1, words + count);
    LocalFree(words);
    return arguments;
}

std::wstring currentDirectory() {
    std::wstring directory(GetCurrentDirectoryW(0, nullptr), L'\0');
    directory.resize(GetCurrentDirectoryW(static_cast<DWORD>(directory.size()), directory.data()));
    return directory;
}

Options readOptions() {
    Options options = parseOptions(commandLine());
    if (options.workingDirectory.empty()) options.workingDirectory = currentDirectory();
    return options;
}

void openJournal(Journal& journal, const std::wstring& path) {
    if (!path.empty() && !journal.open(path)) {
        throw OptionError{L"Le journal « " + path + L" » ne peut pas être créé."};
    }
}

DocumentScript readScript(const Options& options) {
    if (options.documents.empty()) return {};
    return readDocumentScript(options.documents, options.workingDirectory);
}

void complain(const std::wstring& text) {
    MessageBoxW(nullptr, text.c_str(), L"Session d'essai", MB_OK | MB_ICONERROR);
}

/// Tells whoever started the session: by a line on the error output or, without one, in a box.
void complainToStarter(const std::wstring& text) {
    const std::string line = toUtf8(text) + '\n';
    DWORD written = 0;
    if (!WriteFile(GetStdHandle(STD_ERROR_HANDLE), line.data(), static_cast<DWORD>(line.size()),
                   &written, nullptr)) {
        complain(text);
    }
}

void runMessageLoop(HWND window) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (IsDialogMessageW(window, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// Makes documents that clients still hold answer with an error rather than with silence.
void disconnect(const Session& session) {
    for (const DocumentPointer& document : session.documents()) {
        CoDisconnectObject(document.get(), 0);
    }
}

void runSession(HINSTANCE instance, const Options& options) {
    Faults faults(options);
    Journal journal;
    openJournal(journal, options.journal);
    CallDesk desk(faults, journal);
    Session session({options.workingDirectory, readScript(options), options.endingsHidden}, desk);
    session.setSearchFolders(Session::kReferencedDocuments, options.searchFolders);
    MemberNames names(ApplicationObject::members(), kFirstOfApplication);

    const Apartment apartment;
    const ComPtr<ApplicationObject> application(
        new ApplicationObject(session, options.revision, names, desk));
    SessionWindow window(instance, options, session);
    session.watch([&window] { window.refresh(); });
    desk.watch([&window](const std::wstring& line) { window.showCall(line); });
    Registration registration(*application.get(), options.processNameOnly
                                                      ? Registration::Names::ProcessOnly
                                                      : Registration::Names::Both);
    window.atEndOfWindowsSession([&registration] { registration.withdraw(); });
    session.setVisible(!options.hidden);
    runMessageLoop(window.handle());
    disconnect(session);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, PWSTR, int) {
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    try {
        runSession(instance, readOptions());
        return kNormalEnd;
    } catch (const OptionError& error) {
        complain(error.text + kOptionHelp);
        return kWrongOptions;
    } catch (const ScriptError& error) {
        complainToStarter(error.text);
        return kWrongOptions;
    } catch (const RegistrationError& error) {
        complain(error.text);
        return kNotRegistered;
    }
}
