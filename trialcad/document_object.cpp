#include "document_object.h"

#include <utility>

#include "document_file.h"

namespace {

constexpr long kSaved = 0;
constexpr long kNotSaved = 1;

constexpr Member kDocumentMembers[] = {
    {L"GetTitle", 0, perform<&DocumentObject::getTitle>},
    {L"GetPathName", 0, perform<&DocumentObject::getPathName>},
    {L"GetType", 0, perform<&DocumentObject::getType>},
    {L"ForceRebuild3", 1, perform<&DocumentObject::forceRebuild3>},
    {L"Save2", 1, perform<&DocumentObject::save2>},
    {L"ViewZoomtofit2", 0, perform<&DocumentObject::viewZoomtofit2>},
};

}  // namespace

DocumentObject::DocumentObject(Document document, MemberNames& names, CallDesk& desk)
    : AutomationObject(names, desk), document_(std::move(document)) {}

std::span<const Member> DocumentObject::members() { return kDocumentMembers; }

std::wstring DocumentObject::title() const { return fileNameOf(document_.path); }

void DocumentObject::getTitle(Call& call) { call.answer(title()); }

void DocumentObject::getPathName(Call& call) { call.answer(document_.path); }

void DocumentObject::getType(Call& call) { call.answer(static_cast<long>(document_.kind)); }

void DocumentObject::forceRebuild3(Call& call) {
    call.boolean(0);  // refuses an argument that is no Boolean, though a rebuild changes nothing
    call.answer(open_);
}

void DocumentObject::save2(Call& call) {
    call.boolean(0);
    const bool saved = open_ && touchFile(document_.path);
    if (!saved) call.setOutcome(L" -> not saved");
    call.answer(saved ? kSaved : kNotSaved);
}

void DocumentObject::viewZoomtofit2(Call&) {}
