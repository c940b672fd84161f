#include "report.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace {

using Cells = std::vector<std::string>;

std::string fixed(double value, int decimals) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(decimals) << value;
    return text.str();
}

Cells heading(const std::vector<int>& sizes) {
    Cells cells{"work", "floor (1.00)"};
    for (const int size : sizes) cells.push_back(std::to_string(size));
    cells.insert(cells.end(), {"goal", "met", "note"});
    return cells;
}

Cells cellsOf(const std::vector<int>& sizes, const Row& row) {
    Cells cells{row.work, row.floor};
    for (const int size : sizes) {
        // A figure that doesn't depend on the size goes into the last column.
        const auto found =
            row.ratios.find(row.ratios.contains(0) && size == sizes.back() ? 0 : size);
        cells.push_back(found == row.ratios.end() ? "" : ratio(found->second));
    }
    cells.insert(cells.end(), {row.goal, row.judged <= row.limit ? "yes" : "NO", row.note});
    return cells;
}

/// Characters, not bytes.
std::size_t widthOf(const std::string& utf8) {
    return static_cast<std::size_t>(
        std::ranges::count_if(utf8, [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

std::string milliseconds(double value) { return fixed(value, value < 10 ? 2 : 0) + " ms"; }

std::string ratio(double value) { return fixed(value, 2); }

std::string tableOf(const std::vector<int>& sizes, const std::vector<Row>& rows) {
    std::vector<Cells> lines{heading(sizes)};
    for (const Row& row : rows) lines.push_back(cellsOf(sizes, row));
    std::vector<std::size_t> widths(lines.front().size());
    for (const Cells& line : lines) {
        for (std::size_t i = 0; i < line.size(); ++i) {
            widths[i] = std::max(widths[i], widthOf(line[i]));
        }
    }
    std::string rule = "|";
    for (const std::size_t width : widths) rule += std::string(width + 2, '-') + "|";

    std::string table;
    for (const Cells& line : lines) {
        table += "|";
        for (std::size_t i = 0; i < line.size(); ++i) {
            table += " " + line[i] + std::string(widths[i] - widthOf(line[i]), ' ') + " |";
        }
        table += "\n";
        if (&line == &lines.front()) table += rule + "\n";
    }
    return table;
}
