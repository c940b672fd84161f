#include "common/letter_case.h"

#include <clocale>
#include <cwctype>

namespace {

/// A locale that knows the case of all letters, as Windows does.
locale_t letters() {
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

}  // namespace

void makeUpperCase(std::wstring& text) {
    for (wchar_t& c : text) c = static_cast<wchar_t>(towupper_l(static_cast<wint_t>(c), letters()));
}
