#pragma once

#include <cstdint>
#include <string>

/// What the CAD session said about a document, by its numbers: while it was opened, and when it was
/// saved.
struct Remark {
    /// Refused: not opened, with the session's own code; Failed: with the number of a run-time
    /// error, where a call failed or no code was given.
    enum class Opening : std::uint8_t { Silent, WithErrors, Refused, Failed };
    enum class Saving : std::uint8_t { Silent, Refused, Failed };

    Opening opening = Opening::Silent;
    Saving saving = Saving::Silent;
    std::int32_t openingNumber = 0;
    std::int32_t savingNumber = 0;
    std::int32_t warnings = 0;  ///< a bit each

    /// Whether the document is open, but not as it should be.
    bool warns() const { return opening == Opening::WithErrors || warnings != 0; }
    bool operator==(const Remark&) const = default;
};

/// In French, in UTF-8: parts joined by " | ", each with its number in parentheses; empty when
/// nothing was said.
std::string remarkText(const Remark& remark);

/// Why a document was not saved: the words for save2's answer, and that in parentheses.
std::wstring saveRefusalText(std::int32_t code);
