#include "worklist/report.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "ports/clock.h"
#include "worklist/work_list.h"

namespace {

constexpr std::string_view kHead =
    "\xEF\xBB\xBF"
    "N°;Etat;Document;Marqué le;Durée (s);Enregistré\r\n";

constexpr struct {
    std::string_view code;
    std::string_view name;
} kStates[] = {{state::kToDo, "A faire"},
               {state::kDone, "Fait"},
               {state::kSeen, "Vu"},
               {state::kInProgress, "En cours"}};

/// A line of unknown state has that of the line above it, as where the list is shown.
std::string_view stateName(std::string_view code, std::string_view above) {
    // Once the list was saved, the code of a line with the reload flag has it, too.
    if (code.size() == 2 && code[0] == '1') code.remove_prefix(1);
    for (const auto& known : kStates) {
        if (known.code == code) return known.name;
    }
    return above;
}

/// The rows of the table, one after another.
class Rows {
 public:
    explicit Rows(std::string_view head) : text_(head) {}

    void add(std::string_view field) {
        if (field.find_first_of(";\"\r\n") != std::string_view::npos) return addQuoted(field);
        text_ += field;
    }
    /// With zeros before it up to so many digits.
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
}

}  // namespace

std::string reportOf(const WorkList& list, const Clock& clock) {
    Rows rows(kHead);
    std::string_view state = kStates[0].name;
    for (int i = 0; i <= list.last; ++i) {
        const WorkLine& line = list.lines[i];
        state = stateName(line.code, state);
        rows.add(i + 1);
        rows.endField();
        rows.add(state);
        rows.endField();
        rows.add(line.path);
        rows.endField();
        addHistory(rows, line.history, clock);
        rows.endRow();
    }
    return rows.take();
}
