#pragma once

#include <span>
#include <string>

#include "dispatch_object.h"
#include "document_file.h"
#include "document_script.h"

/// A document and how it was opened.
struct Document {
    std::wstring path;
    DocumentKind kind;
    std::wstring title = {};
    bool silent = false;
    std::wstring configuration = {};
    ScriptedCode* save = nullptr;  ///< what its saves answer; null: as usual
};

/// The automation object of an open document.
class DocumentObject : public DispatchObject {
 public:
    DocumentObject(Document document, MemberNames& names, CallDesk& desk);

    static std::span<const Member> members();

    const Document& document() const { return document_; }
    const std::wstring& title() const { return document_.title; }

    /// Whether closing it loses something.
    bool isModified() const { return modified_; }
    void modify() { modified_ = true; }

    /// From now on the object does not answer any more.
    void close() { open_ = false; }
    bool isConnected() const override { return open_; }

    void getTitle(Call& call);
    void getPathName(Call& call);
    void getType(Call& call);
    void forceRebuild3(Call& call);
    void save2(Call& call);
    void viewZoomtofit2(Call& call);

 protected:
    std::wstring journalPrefix() const override;

 private:
    /// What Save2 answers, having saved the document when that is 0.
    long save() const;

    Document document_;
    bool open_ = true;
    bool modified_ = false;
};
