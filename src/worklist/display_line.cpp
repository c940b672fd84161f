#include "worklist/display_line.h"

#include "common/numbers.h"
#include "worklist/short_path.h"

std::wstring displayLine(int index, std::wstring_view label, std::wstring_view path, int depth) {
    std::wstring line = decimal(index + 1);
    if (line.size() < 4) line.insert(0, 4 - line.size(), L'0');
    // Its room is made at once: that takes longer than the letters.
    line.reserve(line.size() + 2 + label.size() + path.size());
    line += L"  ";
    line += label;
    addShownPath(line, path, depth);
    return line;
}
