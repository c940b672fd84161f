#include "input/first_letter.h"

#include "common/text.h"

std::optional<int> lineWithLetter(wchar_t letter, int from, int count,
                                  const std::function<std::wstring(int)>& line) {
    if (letter <= L' ') return std::nullopt;
    for (int i = 1; i <= count; ++i) {
        const int wanted = (from + i) % count;
        const std::wstring text = line(wanted);
        if (equalIgnoringCase(trimmed(text).substr(0, 1), {&letter, 1})) return wanted;
    }
    return std::nullopt;
}
