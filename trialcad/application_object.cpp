#include "application_object.h"

#include <utility>

#include "session.h"

namespace {

constexpr long kSilentOption = 1;
constexpr long kActivateError = 1;

constexpr Member kApplicationMembers[] = {
    {L"RevisionNumber", 0, perform<&ApplicationObject::revisionNumber>},
    {L"GetCurrentWorkingDirectory", 0, perform<&ApplicationObject::getCurrentWorkingDirectory>},
    {L"OpenDoc6", 6, perform<&ApplicationObject::openDoc6>},
    {L"ActivateDoc2", 3, perform<&ApplicationObject::activateDoc2>},
    {L"CloseDoc", 1, perform<&ApplicationObject::closeDoc>},
    {L"GetSearchFolders", 1, perform<&ApplicationObject::getSearchFolders>},
    {L"SetSearchFolders", 2, perform<&ApplicationObject::setSearchFolders>},
    {L"GetDocumentCount", 0, perform<&ApplicationObject::getDocumentCount>},
    {L"ActiveDoc", 0, perform<&ApplicationObject::activeDoc>, nullptr, true},
    {L"Visible", 0, perform<&ApplicationObject::visible>, perform<&ApplicationObject::setVisible>,
     true},
};

void answerDocument(Call& call, DocumentObject* document) {
    if (!document) call.setOutcome(L" -> no document");
    call.answer(document);
}

}  // namespace

ApplicationObject::ApplicationObject(Session& session, std::wstring revision, MemberNames& names,
                                     CallDesk& desk)
    : AutomationObject(names, desk), session_(session), revision_(std::move(revision)) {}

std::span<const Member> ApplicationObject::members() { return kApplicationMembers; }

void ApplicationObject::revisionNumber(Call& call) { call.answer(revision_); }

void ApplicationObject::getCurrentWorkingDirectory(Call& call) {
    call.answer(session_.workingDirectory());
}

void ApplicationObject::openDoc6(Call& call) {
    const bool silent = call.integer(2) & kSilentOption;
    long error = 0;
    DocumentObject* document =
        session_.open({call.text(0), call.integer(1), silent, call.text(3)}, error);
    call.giveBack(4, error);
    call.giveBack(5, 0);
    answerDocument(call, document);
}

void ApplicationObject::activateDoc2(Call& call) {
    call.boolean(1);  // refuses an argument that is no Boolean, though no dialog is ever shown
    DocumentObject* document = session_.activate(call.text(0));
    call.giveBack(2, document ? 0 : kActivateError);
    answerDocument(call, document);
}

void ApplicationObject::closeDoc(Call& call) { session_.close(call.text(0)); }

void ApplicationObject::getSearchFolders(Call& call) {
    call.answer(session_.searchFolders(call.integer(0)));
}

void ApplicationObject::setSearchFolders(Call& call) {
    session_.setSearchFolders(call.integer(0), call.text(1));
    call.answer(true);
}

void ApplicationObject::getDocumentCount(Call& call) {
    call.answer(static_cast<long>(session_.documents().size()));
}

void ApplicationObject::activeDoc(Call& call) { call.answer(session_.active()); }

void ApplicationObject::visible(Call& call) { call.answer(session_.visible()); }

void ApplicationObject::setVisible(Call& call) { session_.setVisible(call.boolean(0)); }
