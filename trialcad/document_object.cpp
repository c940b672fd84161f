#include "document_object.h"

#include <cstdint>
#include <utility>

#include "document_file.h"

namespace {

// Of swFileSaveError_e.
constexpr std::int32_t kSaved = 0;
constexpr std::int32_t kNotSaved = 1;
constexpr std::int32_t kReadOnlyFile = 2;

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
    : DispatchObject(names, desk), document_(std::move(document)) {}

std::span<const Member> DocumentObject::members() { return kDocumentMembers; }

std::wstring DocumentObject::journalPrefix() const { return fileNameOf(document_.path) + L"."; }

void DocumentObject::getTitle(Call& call) { call.answer(title()); }

void DocumentObject::getPathName(Call& call) { call.answer(document_.path); }

void DocumentObject::getType(Call& call) { call.answer(static_cast<std::int32_t>(document_.kind)); }

void DocumentObject::forceRebuild3(Call& call) {
    call.boolean(0);  // refuses an argument that is no Boolean
    modify();
    call.answer(true);
}

void DocumentObject::save2(Call& call) {
    call.boolean(0);
    const std::int32_t code = save();
    if (code == kSaved) {
        modified_ = false;
    } else {
        call.tell(title() + L" n'est pas enregistré (" + std::to_wstring(code) + L")",
                  L" -> not saved");
    }
    call.answer(code);
}

std::int32_t DocumentObject::save() const {
    const std::int32_t scripted = document_.save ? document_.save->next().value_or(kSaved) : kSaved;
    if (scripted != kSaved) return scripted;
    if (touchFile(document_.path)) return kSaved;
    return isReadOnly(document_.path) ? kReadOnlyFile : kNotSaved;
}

void DocumentObject::viewZoomtofit2(Call&) {}
