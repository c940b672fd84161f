#include "win32/window/win_file_dialogs.h"

#include <windows.h>

#include <shobjidl.h>

#include "win32/com/com_ptr.h"
#include "win32/process/require.h"
#include "win32/window/modal_question.h"

namespace {

constexpr wchar_t kWhat[] = L"la boîte d'enregistrement";

ComPtr<IFileSaveDialog> makeDialog() {
    ComPtr<IFileSaveDialog> dialog;
    requireSuccess(CoCreateInstance(CLSID_FileSaveDialog, nullptr, CLSCTX_INPROC_SERVER,
                                    IID_IFileSaveDialog, dialog.putVoid()),
                   kWhat);
    return dialog;
}

/// A directory that is gone meanwhile leaves the dialog where it was used last.
void open(IFileSaveDialog& dialog, const std::wstring& directory) {
    ComPtr<IShellItem> item;
    SHCreateItemFromParsingName(directory.c_str(), nullptr, IID_IShellItem, item.putVoid());
    if (item) dialog.SetFolder(item.get());
}

void prepare(IFileSaveDialog& dialog, const SaveQuestion& question) {
    const std::wstring pattern = L"*." + question.extension;
    const COMDLG_FILTERSPEC kind{question.kind.c_str(), pattern.c_str()};
    FILEOPENDIALOGOPTIONS options = 0;
    dialog.GetOptions(&options);
    dialog.SetOptions(options | FOS_OVERWRITEPROMPT | FOS_FORCEFILESYSTEM | FOS_NOCHANGEDIR);
    dialog.SetTitle(question.title.c_str());
    dialog.SetFileTypes(1, &kind);
    dialog.SetDefaultExtension(question.extension.c_str());
    dialog.SetFileName(question.name.c_str());
    open(dialog, question.directory);
}

std::wstring pathOf(IFileSaveDialog& dialog) {
    ComPtr<IShellItem> item;
    requireSuccess(dialog.GetResult(item.put()), kWhat);
    PWSTR path = nullptr;
    requireSuccess(item->GetDisplayName(SIGDN_FILESYSPATH, &path), kWhat);
    std::wstring result(path);
    CoTaskMemFree(path);
    return result;
}

}  // namespace

std::optional<std::wstring> WinFileDialogs::askWhereToSave(const SaveQuestion& question) {
    const auto dialog = makeDialog();
    prepare(*dialog.get(), question);
    const ModalQuestion asking;
    const HRESULT answer = dialog->Show(asking.owner());
    if (answer == HRESULT_FROM_WIN32(ERROR_CANCELLED)) return std::nullopt;
    requireSuccess(answer, kWhat);
    return pathOf(*dialog.get());
}
