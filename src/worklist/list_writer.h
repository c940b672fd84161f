#pragma once

#include <string>
#include <string_view>

#include "ports/files.h"

/// Hands texts on to a file. What stands side by side in memory, as unchanged lines do in the list
/// file that was read, goes together; short pieces are gathered.
class ListWriter {
 public:
    explicit ListWriter(const ByteSink& file);

    void add(std::string_view text);
    void finish();

 private:
    void endRun();
    void flush();

    const ByteSink& file_;
    std::string_view run_;  ///< still growing
    std::string gathered_;
};
