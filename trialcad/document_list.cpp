#include "document_list.h"

#include <commctrl.h>
#include <iterator>

#include "document_file.h"

namespace {

struct Column {
    const wchar_t* heading;
    int width;  ///< in pixels at 96 per inch
};

constexpr Column kColumns[] = {
    {L"Document", 170},   {L"Actif", 45},     {L"Type", 85},
    {L"Répertoire", 260}, {L"Ouverture", 85}, {L"Configuration", 95},
};

void setCell(HWND list, int row, int column, std::wstring text) {
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text.data();
    SendMessageW(list, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

void addRow(HWND list, int row, const DocumentObject& document, bool active) {
    const Document& facts = document.document();
    std::wstring title = document.title();
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = title.data();
    SendMessageW(list, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    setCell(list, row, 1, active ? L"oui" : L"");
    setCell(list, row, 2, kindName(facts.kind));
    setCell(list, row, 3, directoryOf(facts.path));
    setCell(list, row, 4, facts.silent ? L"silencieuse" : L"normale");
    setCell(list, row, 5, facts.configuration.empty() ? L"par défaut" : facts.configuration);
}

}  // namespace

HWND createDocumentList(HWND parent) {
    const HWND list = CreateWindowExW(
        WS_EX_CLIENTEDGE, WC_LISTVIEWW, L"Documents ouverts",
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_NOSORTHEADER, 0, 0, 0,
        0, parent, nullptr, nullptr, nullptr);
    SendMessageW(list, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    for (size_t i = 0; i < std::size(kColumns); ++i) {
        LVCOLUMNW column{};
        column.mask = LVCF_TEXT;
        column.pszText = const_cast<wchar_t*>(kColumns[i].heading);
        SendMessageW(list, LVM_INSERTCOLUMNW, i, reinterpret_cast<LPARAM>(&column));
    }
    return list;
}

void fillDocumentList(HWND list, const Session& session) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    SendMessageW(list, LVM_DELETEALLITEMS, 0, 0);
    int row = 0;
    for (const DocumentPointer& document : session.documents()) {
        addRow(list, row++, *document.get(), document.get() == session.active());
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

void sizeDocumentList(HWND list, UINT dpi) {
    for (size_t i = 0; i < std::size(kColumns); ++i) {
        SendMessageW(list, LVM_SETCOLUMNWIDTH, i,
                     MulDiv(kColumns[i].width, static_cast<int>(dpi), 96));
    }
}
