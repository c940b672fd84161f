#pragma once

#include <map>
#include <string>
#include <vector>

#include "setting.h"

/// One line of the table: a figure at several numbers of documents.
struct Row {
    std::string work;
    std::string floor;             ///< what 1.00 stands for
    std::map<int, double> ratios;  ///< by number of documents; 0: it doesn't depend on them
    std::string goal;
    double judged = 0;  ///< the figure that the goal refers to
    double limit = 0;
    std::string note = {};
};

/// The table in Markdown, aligned so that it can be read as plain text, too.
std::string tableOf(const std::vector<int>& sizes, const std::vector<Row>& rows);

/// "12.3 ms"
std::string milliseconds(double value);
/// "1.07"
std::string ratio(double value);
