#pragma once

#include <span>
#include <string>

#include "automation_object.h"
#include "document_kind.h"

/// A document and how it was opened.
struct Document {
    std::wstring path;
    DocumentKind kind;
    bool silent;
    std::wstring configuration;
};

/// The automation object of an open document.
class DocumentObject : public AutomationObject {
 public:
    DocumentObject(Document document, MemberNames& names, CallDesk& desk);

    static std::span<const Member> members();

    const Document& document() const { return document_; }
    std::wstring title() const;

    /// From now on the object only tells who it was: it rebuilds and saves nothing.
    void close() { open_ = false; }

    void getTitle(Call& call);
    void getPathName(Call& call);
    void getType(Call& call);
    void forceRebuild3(Call& call);
    void save2(Call& call);
    void viewZoomtofit2(Call& call);

 protected:
    std::wstring journalPrefix() const override { return title() + L"."; }

 private:
    Document document_;
    bool open_ = true;
};
