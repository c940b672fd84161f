#pragma once

#include <optional>
#include <string>
#include <vector>

/// A number that a document answers: always, or the first times only.
class ScriptedCode {
 public:
    ScriptedCode() = default;
    /// Without a number of times: always.
    ScriptedCode(long code, std::optional<long> times) : code_(code), left_(times) {}

    /// The number for this call, nothing when it goes as usual.
    std::optional<long> next();

 private:
    std::optional<long> code_;
    std::optional<long> left_;
};

/// What --documents says of one document.
struct ScriptedDocument {
    std::wstring name;      ///< as the file has it: a path or a file name
    std::wstring path;      ///< the name made absolute from the session's working directory
    ScriptedCode refuse;    ///< OpenDoc6 answers an empty object and this error
    ScriptedCode error;     ///< OpenDoc6 answers the document and this error
    ScriptedCode warning;   ///< the same with a warning
    ScriptedCode save;      ///< Save2 answers this; other than 0: without having saved
    bool usersOwn = false;  ///< the user had it open, with changes that are not saved
};

/// The documents that don't simply open and save.
using DocumentScript = std::vector<ScriptedDocument>;

/// A file of --documents that can't be read, with the French line that says where and why.
struct ScriptError {
    std::wstring text;
};

/// Reads the file of --documents, its relative paths from that directory; throws ScriptError.
DocumentScript readDocumentScript(const std::wstring& file, const std::wstring& directory);

/// The first that names this document by its path or file name; null when none does.
ScriptedDocument* scriptedDocument(DocumentScript& script, const std::wstring& path);
