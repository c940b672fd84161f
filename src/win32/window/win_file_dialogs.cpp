#include "win32/window/win_file_dialogs.h"

#include <windows.h>

#include <shobjidl.h>
#include <vector>

#include "win32/com/com_ptr.h"
#include "win32/process/require.h"
#include "win32/window/modal_question.h"

namespace {

constexpr wchar_t kWhat[] = L"la boîte de choix d'un fichier";

/// Neither the current directory nor what is no file is touched by it.
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

/// A directory that is gone meanwhile leaves the dialog where it was used last.
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
