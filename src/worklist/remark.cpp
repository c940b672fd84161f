#include "worklist/remark.h"

#include <span>
#include <string_view>
#include <utility>

#include "common/encoding.h"

namespace {

struct CodeWords {
    std::uint32_t bit;
    std::string_view words;
};

// swFileLoadError_e (SolidWorks API help, swconst, releases 2010 to 2025): bits.
constexpr CodeWords kOpeningErrors[] = {
    {1, "autre erreur"},
    {2, "fichier ou composant introuvable"},
    {1024, "type de document inattendu"},
    {8192, "enregistré par une version plus récente"},
    {65536, "un document de même nom est déjà ouvert"},
    {131072, "document chiffré"},
    {262144, "mémoire ou objets graphiques épuisés"},
    {524288, "pas de données d'affichage"},
    {1048576, "ouverture interrompue par l'utilisateur"},
    {2097152, "données endommagées, sans gravité"},
    {4194304, "données gravement endommagées"},
    {8388608, "SolidWorks occupé"},
    {16777216, "service en ligne non connecté"},
};

// swFileLoadWarning_e: the warnings that matter to a draughtsman.
constexpr CodeWords kWarnings[] = {
    {2, "Lecture seule"},
    {4, "Utilisé par un autre"},
    {32, "A reconstruire"},
    {128, "Déjà ouvert"},
};

// swFileSaveError_e: bits.
constexpr CodeWords kSavingErrors[] = {
    {1, "autre erreur"},
    {2, "document en lecture seule"},
    {4, "nom de fichier vide"},
    {8, "nom de fichier avec @"},
    {16, "fichier verrouillé"},
    {32, "type de fichier inattendu"},
    {2048, "nom de fichier trop long"},
    {8192, "composants renommés, références à enregistrer d'abord"},
};

std::string_view wordsOf(std::uint32_t bit, std::span<const CodeWords> table,
                         std::string_view otherwise) {
    for (const CodeWords& known : table) {
        if (known.bit == bit) return known.words;
    }
    return otherwise;
}

/// Does something with each bit that is set, from the lowest up.
template <class Action>
void eachBit(std::int32_t code, const Action& action) {
    const auto bits = static_cast<std::uint32_t>(code);
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1) {
        if (bits & bit) action(bit);
    }
}

std::string numbered(std::string_view words, std::int64_t number) {
    return std::string(words).append(" (").append(std::to_string(number)).append(")");
}

std::string codeText(std::int32_t code, std::span<const CodeWords> table) {
    std::string words;
    eachBit(code, [&](std::uint32_t bit) {
        if (!words.empty()) words += ", ";
        words += wordsOf(bit, table, "raison inconnue");
    });
    return numbered(words, code);
}

/// The text for a call that failed, or a document that was not returned.
std::string errorText(std::int32_t number) {
    constexpr std::int32_t kNoObject = 91;
    return numbered(number == kNoObject ? "document non rendu" : "l'appel a échoué", number);
}

class Parts {
 public:
    void add(const std::string& part) {
        if (!text_.empty()) text_ += " | ";
        text_ += part;
    }
    std::string take() { return std::move(text_); }

 private:
    std::string text_;
};

void addOpening(Parts& parts, const Remark& remark) {
    switch (remark.opening) {
        case Remark::Opening::WithErrors:
            return parts.add("Ouvert avec erreur : " +
                             codeText(remark.openingNumber, kOpeningErrors));
        case Remark::Opening::Refused:
            return parts.add("Non ouvert : " + codeText(remark.openingNumber, kOpeningErrors));
        case Remark::Opening::Failed:
            return parts.add("Non ouvert : " + errorText(remark.openingNumber));
        default:
            return;
    }
}

void addSaving(Parts& parts, const Remark& remark) {
    if (remark.saving == Remark::Saving::Silent) return;
    const bool refused = remark.saving == Remark::Saving::Refused;
    parts.add("Non enregistré : " + (refused ? codeText(remark.savingNumber, kSavingErrors)
                                             : errorText(remark.savingNumber)));
}

}  // namespace

std::string remarkText(const Remark& remark) {
    Parts parts;
    addOpening(parts, remark);
    eachBit(remark.warnings, [&](std::uint32_t bit) {
        parts.add(numbered(wordsOf(bit, kWarnings, "Avertissement"), bit));
    });
    addSaving(parts, remark);
    return parts.take();
}

std::wstring saveRefusalText(std::int32_t code) { return wideText(codeText(code, kSavingErrors)); }
