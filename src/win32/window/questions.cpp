#include "win32/window/questions.h"

#include <windows.h>

#include <shobjidl.h>
#include <vector>

#include "input/judge.h"
#include "rules/boxes_and_buttons.h"
#include "win32/com/com_ptr.h"
#include "win32/process/handles.h"
#include "win32/process/require.h"
#include "win32/window/message_loop.h"
#include "win32/window/own_windows.h"

namespace {

/// Gives a message box French buttons, whatever the language of the system, when it opens.
class FrenchButtons {
 public:
    FrenchButtons() : hook_(SetWindowsHookExW(WH_CBT, onCbt, nullptr, GetCurrentThreadId())) {}

 private:
    static LRESULT CALLBACK onCbt(int code, WPARAM wParam, LPARAM lParam) {
        if (code == HCBT_ACTIVATE) translate(reinterpret_cast<HWND>(wParam));
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static void translate(HWND box) {
        wchar_t className[16] = {};
        GetClassNameW(box, className, ARRAYSIZE(className));
        if (lstrcmpW(className, L"#32770") != 0) return;
        const bool retry = GetDlgItem(box, IDRETRY);
        for (int id = IDOK; id <= IDNO; ++id) {
            const wchar_t* caption = frenchCaption(static_cast<MessageBoxes::Answer>(id), retry);
            if (caption && GetDlgItem(box, id)) SetDlgItemTextW(box, id, caption);
        }
    }

    // Should it fail, the buttons keep the system's language: better than no box.
    UniqueHook hook_;
};

DWORD styleOf(const MessageBoxContent& box) {
    const int defaultButton = (box.defaultButton - 1) * MB_DEFBUTTON2;
    return static_cast<DWORD>(static_cast<int>(box.buttons) | static_cast<int>(box.icon) |
                              defaultButton) |
           MB_SETFOREGROUND;
}

constexpr wchar_t kWhat[] = L"la boîte de choix d'un fichier";

/// It offers files of the file system only, and leaves the current directory as it is.
ComPtr<IFileDialog> makeDialog(const CLSID& kind, const std::wstring& title,
                               FILEOPENDIALOGOPTIONS more) {
    ComPtr<IFileDialog> dialog;
    requireSuccess(
        CoCreateInstance(kind, nullptr, CLSCTX_INPROC_SERVER, IID_IFileDialog, dialog.putVoid()),
        kWhat);
    FILEOPENDIALOGOPTIONS options = 0;
    dialog->GetOptions(&options);
    dialog->SetOptions(options | FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR | more);
    dialog->SetTitle(title.c_str());
    return dialog;
}

/// When the directory no longer exists, the dialog opens where it was used last.
void open(IFileDialog& dialog, const std::wstring& directory) {
    ComPtr<IShellItem> item;
    SHCreateItemFromParsingName(directory.c_str(), nullptr, IID_IShellItem, item.putVoid());
    if (item) dialog.SetFolder(item.get());
}

std::wstring pathOf(IFileDialog& dialog) {
    ComPtr<IShellItem> item;
    requireSuccess(dialog.GetResult(item.put()), kWhat);
    PWSTR path = nullptr;
    requireSuccess(item->GetDisplayName(SIGDN_FILESYSPATH, &path), kWhat);
    std::wstring result(path);
    CoTaskMemFree(path);
    return result;
}

std::optional<std::wstring> ask(IFileDialog& dialog, Judge& judge) {
    const ModalQuestion asking(judge);
    const HRESULT answer = dialog.Show(asking.owner());
    if (answer == HRESULT_FROM_WIN32(ERROR_CANCELLED)) return std::nullopt;
    requireSuccess(answer, kWhat);
    return pathOf(dialog);
}

}  // namespace

ModalQuestion::ModalQuestion(Judge& judge) : judge_(judge), owner_(ownerOfDialogs()) {
    for (HWND window : ownWindows()) {
        if (window == owner_ || !IsWindowVisible(window) || !IsWindowEnabled(window)) continue;
        disabled_.push_back(window);
        EnableWindow(window, FALSE);
    }
    judge_.questionBegins();
    showPointer(judge_);
}

ModalQuestion::~ModalQuestion() {
    for (HWND window : disabled_) EnableWindow(window, TRUE);
    judge_.questionEnds();
    showPointer(judge_);
}

bool ModalQuestion::topmost() const {
    return owner_ && (GetWindowLongW(owner_, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

MessageBoxes::Answer WinMessageBoxes::show(const MessageBoxContent& box) {
    const ModalQuestion question(judge_);
    const std::wstring text = withBoundQuotes(box.text);
    MSGBOXPARAMSW parameters{};
    parameters.cbSize = sizeof parameters;
    parameters.hwndOwner = question.owner();
    parameters.lpszText = text.c_str();
    parameters.lpszCaption = box.title.c_str();
    parameters.dwStyle = styleOf(box) | (question.topmost() ? MB_TOPMOST : 0);
    parameters.dwContextHelpId = static_cast<DWORD>(box.helpContext);
    const FrenchButtons french;
    const int button = MessageBoxIndirectW(&parameters);
    return box.buttons == MessageBoxContent::Buttons::Ok ? Answer::Ok : static_cast<Answer>(button);
}

std::optional<std::wstring> WinFileDialogs::askWhereToSave(const SaveQuestion& question) {
    const auto dialog = makeDialog(CLSID_FileSaveDialog, question.title, FOS_OVERWRITEPROMPT);
    const std::wstring pattern = L"*." + question.extension;
    const COMDLG_FILTERSPEC kind{question.kind.c_str(), pattern.c_str()};
    dialog->SetFileTypes(1, &kind);
    dialog->SetDefaultExtension(question.extension.c_str());
    dialog->SetFileName(question.name.c_str());
    open(*dialog.get(), question.directory);
    return ask(*dialog.get(), judge_);
}

std::optional<std::wstring> WinFileDialogs::askWhatToOpen(const OpenQuestion& question) {
    const auto dialog = makeDialog(CLSID_FileOpenDialog, question.title, FOS_FILEMUSTEXIST);
    std::vector<COMDLG_FILTERSPEC> kinds;
    for (const auto& kind : question.kinds) {
        kinds.push_back({kind.name.c_str(), kind.patterns.c_str()});
    }
    dialog->SetFileTypes(static_cast<UINT>(kinds.size()), kinds.data());
    return ask(*dialog.get(), judge_);
}
