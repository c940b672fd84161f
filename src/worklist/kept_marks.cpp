#include "worklist/kept_marks.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "common/bytes.h"
#include "worklist/work_list.h"

namespace {

constexpr std::string_view kMagic = "Tarnwick reprise 2\n";
/// The one of the release before, which kept no remarks.
constexpr std::string_view kMagicWithoutRemarks = "Tarnwick reprise 1\n";
constexpr std::size_t kHeaderSize = kMagic.size() + 8 + 8 + 4 + 8 + 4;

// An entry's first byte says which state it is and what else follows; the second byte says the
// same about the remark.
constexpr unsigned kStateBits = 0x07;
constexpr unsigned kManyLines = 0x08;  ///< how many lines it is for follows
constexpr unsigned kMarked = 0x10;     ///< the time of the mark follows
constexpr unsigned kOpened = 0x20;     ///< how long the document was open follows
constexpr unsigned kSavedShift = 6;
constexpr unsigned kRemarkKind = 0x03;  ///< two bits for the opening, then two for the saving
constexpr unsigned kSavingShift = 2;
constexpr unsigned kWarned = 0x10;

std::string sealed(std::string bytes, std::uint32_t seed) {
    appendFixed<std::uint32_t>(bytes, crc32(bytes, seed));
    return bytes;
}

void appendNumber(std::string& bytes, std::int32_t number) { appendPacked(bytes, zigzag(number)); }

void appendRemark(std::string& bytes, const Remark& remark) {
    const unsigned head = static_cast<unsigned>(remark.opening) |
                          static_cast<unsigned>(remark.saving) << kSavingShift |
                          (remark.warnings != 0 ? kWarned : 0);
    bytes += static_cast<char>(head);
    if (remark.opening != Remark::Opening::Silent) appendNumber(bytes, remark.openingNumber);
    if (remark.saving != Remark::Saving::Silent) appendNumber(bytes, remark.savingNumber);
    if (remark.warnings != 0) appendNumber(bytes, remark.warnings);
}

void appendEntry(std::string& bytes, const KeptLine& line, std::size_t many, std::int64_t base) {
    const LineHistory& history = line.history;
    const unsigned head = static_cast<unsigned>(line.state) | (many > 1 ? kManyLines : 0) |
                          (history.markedAt != 0 ? kMarked : 0) |
                          (history.secondsOpen >= 0 ? kOpened : 0) |
                          static_cast<unsigned>(history.saved) << kSavedShift;
    bytes += static_cast<char>(head);
    appendRemark(bytes, history.remark);
    if (many > 1) appendPacked(bytes, many);
    if (history.markedAt != 0) appendPacked(bytes, zigzag(history.markedAt - base));
    if (history.secondsOpen >= 0) {
        appendPacked(bytes, static_cast<std::uint64_t>(history.secondsOpen));
    }
}

/// How many of the changed lines, from the first on, follow one another in the file and have become
/// the same.
std::size_t sameFrom(std::span<const std::size_t> changed, std::span<const KeptLine> lines) {
    const auto isLike = [&](std::size_t i) {
        return changed[i] == changed[0] + i && lines[changed[i]] == lines[changed[0]];
    };
    std::size_t end = 1;
    while (end < changed.size() && isLike(end)) ++end;
    return end;
}

/// Reads one record. The functions return false for bytes that make no sense.
class RecordReader {
 public:
    RecordReader(std::string_view entries, std::int64_t base, bool withRemarks)
        : bytes_(entries), base_(base), withRemarks_(withRemarks) {}

    bool read(std::size_t lineCount) {
        if (!takePacked(bytes_, opening_) || opening_ > lineCount) return false;
        while (!bytes_.empty()) {
            if (!readEntry(lineCount)) return false;
        }
        return true;
    }

    void applyTo(KeptState& state) const {
        for (const Entry& entry : entries_) {
            std::fill_n(state.lines.begin() + static_cast<std::ptrdiff_t>(entry.line), entry.many,
                        entry.kept);
        }
        state.opening.reset();
        if (opening_ > 0) state.opening = static_cast<std::int32_t>(opening_ - 1);
    }

 private:
    struct Entry {
        std::size_t line;
        std::size_t many;
        KeptLine kept;
    };

    bool readEntry(std::size_t lineCount) {
        std::uint64_t skipped = 0;
        std::uint64_t many = 1;
        std::uint8_t head = 0;
        KeptLine kept;
        if (!takePacked(bytes_, skipped) || !takeFixed(bytes_, head)) return false;
        if (withRemarks_ && !readRemark(kept.history.remark)) return false;
        if ((head & kManyLines) && (!takePacked(bytes_, many) || many == 0)) return false;
        if (!readKept(head, kept)) return false;
        if (skipped > lineCount - next_ || many > lineCount - next_ - skipped) return false;
        entries_.push_back({next_ + skipped, many, kept});
        next_ += skipped + many;
        return true;
    }

    bool readKept(std::uint8_t head, KeptLine& kept) {
        const unsigned state = head & kStateBits;
        const unsigned saved = head >> kSavedShift;
        if (state > static_cast<unsigned>(KeptLine::State::AsInFile)) return false;
        if (saved > static_cast<unsigned>(Saved::No)) return false;
        kept.state = static_cast<KeptLine::State>(state);
        kept.history.saved = static_cast<Saved>(saved);
        return readTimes(head, kept.history);
    }

    bool readRemark(Remark& remark) {
        std::uint8_t head = 0;
        if (!takeFixed(bytes_, head)) return false;
        const unsigned saving = (head >> kSavingShift) & kRemarkKind;
        if (saving > static_cast<unsigned>(Remark::Saving::Failed)) return false;
        remark.opening = static_cast<Remark::Opening>(head & kRemarkKind);
        remark.saving = static_cast<Remark::Saving>(saving);
        const bool opening = remark.opening != Remark::Opening::Silent;
        return (!opening || readNumber(remark.openingNumber)) &&
               (saving == 0 || readNumber(remark.savingNumber)) &&
               (!(head & kWarned) || readNumber(remark.warnings));
    }

    bool readNumber(std::int32_t& number) {
        std::uint64_t bits = 0;
        if (!takePacked(bytes_, bits)) return false;
        number = static_cast<std::int32_t>(unzigzag(bits));
        return true;
    }

    bool readTimes(std::uint8_t head, LineHistory& history) {
        std::uint64_t at = 0;
        std::uint64_t seconds = 0;
        if ((head & kMarked) && !takePacked(bytes_, at)) return false;
        if ((head & kOpened) && !takePacked(bytes_, seconds)) return false;
        if (seconds > 0x7FFFFFFF) return false;
        if (head & kMarked) history.markedAt = timeOrNone(sum(base_, unzigzag(at)));
        if (head & kOpened) history.secondsOpen = static_cast<std::int32_t>(seconds);
        return true;
    }

    /// A time that can't be right is dropped, so that a wrong clock doesn't cost the mark.
    static std::int64_t timeOrNone(std::int64_t time) {
        constexpr std::int64_t kYear10000 = 253'402'300'800;
        return time > 0 && time < kYear10000 ? time : 0;
    }

    /// Wraps around, so that no bytes can make it overflow.
    static std::int64_t sum(std::int64_t a, std::int64_t b) {
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) +
                                         static_cast<std::uint64_t>(b));
    }

    std::string_view bytes_;
    std::int64_t base_;
    bool withRemarks_;
    std::uint64_t opening_ = 0;
    std::size_t next_ = 0;
    std::vector<Entry> entries_;
};

/// The entries of the next record; nothing when it is torn or belongs to another list.
std::optional<std::string_view> takeRecord(std::string_view& bytes, std::uint32_t seed) {
    std::string_view rest = bytes;
    std::uint32_t length = 0;
    std::uint32_t checksum = 0;
    if (!takeFixed(rest, length) || length > rest.size()) return std::nullopt;
    const std::string_view checked = bytes.substr(0, sizeof length + length);
    rest.remove_prefix(length);
    if (!takeFixed(rest, checksum) || checksum != crc32(checked, seed)) return std::nullopt;
    bytes = rest;
    return checked.substr(sizeof length);
}

std::string headerOf(std::string_view magic, const ContentIdentity& list, std::size_t lineCount,
                     std::int64_t baseTime) {
    std::string header(magic);
    appendFixed<std::uint64_t>(header, list.length());
    appendFixed<std::uint64_t>(header, list.hash());
    appendFixed<std::uint32_t>(header, static_cast<std::uint32_t>(lineCount));
    appendFixed<std::uint64_t>(header, static_cast<std::uint64_t>(baseTime));
    return sealed(std::move(header), 0);
}

}  // namespace

KeptMarksWriter::KeptMarksWriter(const ContentIdentity& list, std::size_t lineCount,
                                 std::int64_t baseTime)
    : header_(headerOf(kMagic, list, lineCount, baseTime)),
      seed_(crc32(header_, 0)),
      baseTime_(baseTime) {}

std::string KeptMarksWriter::record(std::span<const std::size_t> changed,
                                    std::span<const KeptLine> lines,
                                    std::optional<std::int32_t> opening) const {
    std::string entries;
    appendPacked(entries, opening ? static_cast<std::uint64_t>(*opening) + 1 : 0);
    std::size_t told = 0;
    while (!changed.empty()) {
        const std::size_t first = changed[0];
        const std::size_t many = sameFrom(changed, lines);
        appendPacked(entries, first - told);
        appendEntry(entries, lines[first], many, baseTime_);
        told = first + many;
        changed = changed.subspan(many);
    }
    std::string record;
    appendFixed<std::uint32_t>(record, static_cast<std::uint32_t>(entries.size()));
    return sealed(record + entries, seed_);
}

std::optional<KeptState> readKeptMarks(std::string_view record, const ContentIdentity& list,
                                       std::size_t lineCount) {
    if (record.size() < kHeaderSize) return std::nullopt;
    const std::string_view header = record.substr(0, kHeaderSize);
    std::string_view base = header.substr(kHeaderSize - 12);
    std::uint64_t baseTime = 0;
    takeFixed(base, baseTime);
    const bool withRemarks = !header.starts_with(kMagicWithoutRemarks);
    if (header != headerOf(withRemarks ? kMagic : kMagicWithoutRemarks, list, lineCount,
                           static_cast<std::int64_t>(baseTime))) {
        return std::nullopt;
    }
    KeptState state{std::vector<KeptLine>(lineCount), std::nullopt};
    record.remove_prefix(kHeaderSize);
    const std::uint32_t seed = crc32(header, 0);
    while (const auto entries = takeRecord(record, seed)) {
        RecordReader reader(*entries, static_cast<std::int64_t>(baseTime), withRemarks);
        if (!reader.read(lineCount)) break;
        reader.applyTo(state);
    }
    return state;
}
