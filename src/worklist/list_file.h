#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "worklist/work_list.h"

// The list file: one line per document, its state code, two blanks, its full path, CR LF.

/// Reads the text of a list file into a list.
class ListFileReader {
 public:
    explicit ListFileReader(WorkList& list) : list_(list) {}

    /// Adds the lines of a piece of the text. A code over 9 is stored less 10 with the reload flag
    /// set. Raises 5 for a line shorter than three characters, 9 past 8001 lines.
    void add(std::wstring_view piece);

    /// Sets DerFich. False, the list untouched, when there was no line.
    bool finish();

 private:
    WorkList& list_;
    long count_ = 0;
};

/// Hands on the text for the first `lineCount` lines. As a side effect the code of every flagged
/// line is given a leading 1 in the list, once more at each call. Raises 9 past the table.
void formatListFile(WorkList& list, long lineCount, const TextSink& sink);

/// Appends the line of a document still to do, as a freshly launched pass writes it.
void appendFreshLine(std::wstring& text, std::wstring_view path);
