#include "worklist/list_writer.h"

namespace {

constexpr std::size_t kPiece = 1 << 16;
constexpr std::size_t kLongRun = 1 << 14;  ///< copying it would take longer than another write

}  // namespace

ListWriter::ListWriter(const ByteSink& file) : file_(file) { gathered_.reserve(kPiece + kLongRun); }

void ListWriter::add(std::string_view text) {
    if (run_.data() + run_.size() == text.data()) {
        run_ = {run_.data(), run_.size() + text.size()};
        return;
    }
    endRun();
    run_ = text;
}

void ListWriter::finish() {
    endRun();
    flush();
}

void ListWriter::endRun() {
    if (run_.size() < kLongRun) {
        gathered_ += run_;
        if (gathered_.size() >= kPiece) flush();
    } else {
        flush();
        file_(run_);
    }
    run_ = {};
}

void ListWriter::flush() {
    if (!gathered_.empty()) file_(gathered_);
    gathered_.clear();
}
