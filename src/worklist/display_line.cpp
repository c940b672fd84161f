#include "worklist/display_line.h"

#include "common/numbers.h"
#include "worklist/short_path.h"

std::wstring displayLine(int index, std::wstring_view label, std::wstring_view path, int depth) {
    std::wstring line = decimal(index + 1);
    if (line.size() < 4) line.insert(0, 4 - line.size(), L'0');
    line += L"  ";
    line += label;
    line += shownPath(path, depth);
    return line;
}
