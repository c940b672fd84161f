#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "dispatch_object.h"
#include "document_file.h"
#include "document_script.h"

/// A document, and how it was opened.
struct Document {
    std::wstring path;
    DocumentKind kind;
    std::wstring title = {};
    bool silent = false;
    std::wstring configuration = {};
    ScriptedCode* save = nullptr;  ///< the answers to its saves; null: the usual ones
};

/// The automation object of an open document.
class DocumentObject : public DispatchObject {
 public:
    DocumentObject(Document document, MemberNames& names, CallDesk& desk);

    static std::span<const Member> members();

    const Document& document() const { return document_; }
    const std::wstring& title() const { return document_.title; }

    /// Whether closing it loses changes.
    bool isModified() const { return modified_; }
    void modify() { modified_ = true; }

    /// From now on the object no longer answers.
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
    /// Saves the document if it can be saved; returns what Save2 answers.
    std::int32_t save() const;

    Document document_;
    bool open_ = true;
    bool modified_ = false;
};
