#include "worklist/report.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ports/machine.h"
#include "worklist/work_list.h"

namespace {

constexpr std::string_view kHead =
    "\xEF\xBB\xBF"
    "N°;Etat;Document;Marqué le;Durée (s);Enregistré;Remarque\r\n";

/// In the order of LineState.
constexpr std::string_view kStates[] = {"A faire", "Fait", "Vu", "En cours"};

/// A line of unknown state has the state of the line above it, as in the list shown.
std::string_view stateName(const StateCode& code, std::string_view above) {
    const LineState state = code.shown();
    return state == LineState::Other ? above : kStates[static_cast<std::size_t>(state)];
}

/// The rows of the table, one after another.
class Rows {
 public:
    explicit Rows(std::string_view head) : text_(head) {}

    void add(std::string_view field) {
        if (field.find_first_of(";\"\r\n") != std::string_view::npos) return addQuoted(field);
        text_ += field;
    }
    /// Adds a field that a spreadsheet must not take for a formula.
    void addText(std::string_view field) {
        constexpr std::string_view kFormulaSigns = "=+-@\t\r";
        const bool asFormula = !field.empty() && kFormulaSigns.find(field[0]) != field.npos;
        add(asFormula ? std::string("'").append(field) : field);
    }
    /// With leading zeros up to so many digits.
    void add(int number, std::size_t digits = 1) {
        const std::string text = std::to_string(number);
        text_.append(digits - std::min(digits, text.size()), '0');
        text_ += text;
    }
    void endField() { text_ += ';'; }
    void endRow() { text_ += "\r\n"; }
    std::string take() { return std::move(text_); }

 private:
    void addQuoted(std::string_view field) {
        text_ += '"';
        for (const char c : field) text_.append(c == '"' ? 2 : 1, c);
        text_ += '"';
    }

    std::string text_;
};

void addTime(Rows& rows, const LocalTime& time) {
    rows.add(time.year, 4);
    for (const auto& [mark, number] : {std::pair("-", time.month),
                                       {"-", time.day},
                                       {" ", time.hour},
                                       {":", time.minute},
                                       {":", time.second}}) {
        rows.add(mark);
        rows.add(number, 2);
    }
}

void addHistory(Rows& rows, const LineHistory& history, const Clock& clock) {
    if (history.markedAt != 0) addTime(rows, clock.local(history.markedAt));
    rows.endField();
    if (history.secondsOpen >= 0) rows.add(history.secondsOpen);
    rows.endField();
    if (history.saved != Saved::Unknown) rows.add(history.saved == Saved::Yes ? "oui" : "non");
    rows.endField();
    rows.add(remarkText(history.remark));
}

}  // namespace

std::string reportOf(const WorkList& list, const Clock& clock) {
    Rows rows(kHead);
    std::string_view state = kStates[0];
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& line = list.lines[i];
        state = stateName(line.code, state);
        rows.add(i + 1);
        rows.endField();
        rows.add(state);
        rows.endField();
        rows.addText(line.path);
        rows.endField();
        addHistory(rows, line.history, clock);
        rows.endRow();
    }
    return rows.take();
}
