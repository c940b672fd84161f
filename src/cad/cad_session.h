#pragma once

#include <cstdint>
#include <string>

class Automation;
class Desktop;
struct Module1;

/// The calls to the CAD application, each by the name and with the arguments it is known for.
/// Works on SwApp, SwDoc and NomDocCourant. Every call but `attach` raises what the application
/// answers (438, 440), and 91 when its object is empty.
class CadSession {
 public:
    CadSession(Module1& module, Desktop& desktop) : module_(module), desktop_(desktop) {}

    /// Attaches to the running application, which is never started. False when there is none.
    bool attach(Automation& automation);
    void readRevision();
    void readWorkingDirectory();

    /// Document type codes, 16-bit as the application takes them; 0 before the first document.
    /// Opens a document and leaves it in SwDoc.
    void open(const std::wstring& path, std::int16_t typeCode, bool silent);
    /// Makes an open document the active one and leaves it in SwDoc.
    void activate(const std::wstring& path, std::int16_t typeCode);
    void showApplication();
    void rebuild(bool topLevelOnly);
    void save();
    /// Closes the document NomDocCourant without saving it, even when that name is empty.
    void closeDocument();
    /// Brings the application's window to the front, if its title is as expected, and zooms the
    /// document to fit.
    void bringForward();

 private:
    std::wstring title();

    Module1& module_;
    Desktop& desktop_;
};
