#include "platform/win32/window/fatal_error.h"

#include "common/numbers.h"
#include "common/runtime_error.h"
#include "platform/win32/window/modal_box.h"

void showFatalError(const RuntimeError& error) {
    const std::wstring text =
        L"Erreur d'exécution '" + decimal(error.number) + L"' :\r\n" + error.text;
    showModalBox({.text = text, .title = L"Tarnwick", .style = MB_OK | MB_ICONERROR});
}
