#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

/// A number that a document answers: always, or the first few times only.
class ScriptedCode {
 public:
    ScriptedCode() = default;
    /// Without `times`: always.
    ScriptedCode(std::int32_t code, std::optional<std::int32_t> times)
        : code_(code), left_(times) {}

    /// The number for this call; nothing when the call proceeds as usual.
    std::optional<std::int32_t> next();

 private:
    std::optional<std::int32_t> code_;
    std::optional<std::int32_t> left_;
};

/// What --documents says about one document.
struct ScriptedDocument {
    std::wstring name;      ///< as in the file: a path or a file name
    std::wstring path;      ///< the name relative to the session's working directory, made absolute
    ScriptedCode refuse;    ///< OpenDoc6 answers an empty object and this error
    ScriptedCode error;     ///< OpenDoc6 answers the document and this error
    ScriptedCode warning;   ///< the same with this warning
    ScriptedCode save;      ///< Save2 answers this, and saves only if it is 0
    bool usersOwn = false;  ///< the user had it open, with unsaved changes
};

/// The documents that don't simply open and save.
using DocumentScript = std::vector<ScriptedDocument>;

/// Why a file of --documents can't be read: a French line that says where and why.
struct ScriptError {
    std::wstring text;
};

/// Reads the file of --documents, whose paths are relative to `directory`; throws ScriptError.
DocumentScript readDocumentScript(const std::wstring& file, const std::wstring& directory);

/// The first entry that names this document by its path or file name; null when none does.
ScriptedDocument* scriptedDocument(DocumentScript& script, const std::wstring& path);
