#pragma once

#include <cstdint>
#include <string>

/// What the CAD session said about a document, as numbers: when it was opened, and when it was
/// saved.
struct Remark {
    /// Refused: not opened, for a code of the session's. Failed: not opened, for a run-time error,
    /// when a call failed or the session gave no code.
    enum class Opening : std::uint8_t { Silent, WithErrors, Refused, Failed };
    enum class Saving : std::uint8_t { Silent, Refused, Failed };

    Opening opening = Opening::Silent;
    Saving saving = Saving::Silent;
    std::int32_t openingNumber = 0;
    std::int32_t savingNumber = 0;
    std::int32_t warnings = 0;  ///< one bit each

    /// Whether the document is open, but not as it should be.
    bool warns() const { return opening == Opening::WithErrors || warnings != 0; }
    bool operator==(const Remark&) const = default;
};

/// The remark in French, in UTF-8: parts joined by " | ", each with its number in parentheses;
/// empty when nothing was said.
std::string remarkText(const Remark& remark);

/// Why a document was not saved: save2's answer in words, and its number in parentheses.
std::wstring saveRefusalText(std::int32_t code);
