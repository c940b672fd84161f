#include "platform/fatal_error.h"

#include "common/numbers.h"
#include "common/runtime_error.h"

std::wstring fatalErrorText(const RuntimeError& error) {
    return L"Erreur d'exécution '" + decimal(error.number) + L"' :\r\n" + error.text;
}
