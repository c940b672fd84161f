#include "application_object.h"

#include <cstdint>
#include <utility>

#include "document_file.h"
#include "session.h"

namespace {

constexpr std::int32_t kSilentOption = 1;
constexpr std::int32_t kActivateError = 1;

constexpr Member kApplicationMembers[] = {
    {L"RevisionNumber", 0, perform<&ApplicationObject::revisionNumber>},
    {L"GetCurrentWorkingDirectory", 0, perform<&ApplicationObject::getCurrentWorkingDirectory>},
    {L"SetCurrentWorkingDirectory", 1, perform<&ApplicationObject::setCurrentWorkingDirectory>},
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

std::wstring newsOfOpening(const OpenCodes& codes) {
    std::wstring news;
    if (codes.error != 0) news += L", erreur " + std::to_wstring(codes.error);
    if (codes.warning != 0) news += L", avertissement " + std::to_wstring(codes.warning);
    return news;
}

}  // namespace

ApplicationObject::ApplicationObject(Session& session, std::wstring revision, MemberNames& names,
                                     CallDesk& desk)
    : DispatchObject(names, desk), session_(session), revision_(std::move(revision)) {}

std::span<const Member> ApplicationObject::members() { return kApplicationMembers; }

void ApplicationObject::revisionNumber(Call& call) { call.answer(revision_); }

void ApplicationObject::getCurrentWorkingDirectory(Call& call) {
    call.answer(session_.workingDirectory());
}

void ApplicationObject::setCurrentWorkingDirectory(Call& call) {
    const bool set = session_.setWorkingDirectory(call.text(0));
    if (!set) call.tell(L"ce répertoire n'existe pas");
    call.answer(set);
}

void ApplicationObject::openDoc6(Call& call) {
    const bool silent = call.integer(2) & kSilentOption;
    OpenCodes codes;
    DocumentObject* document =
        session_.open({call.text(0), call.integer(1), silent, call.text(3)}, codes);
    call.giveBack(4, codes.error);
    call.giveBack(5, codes.warning);
    const std::wstring news = newsOfOpening(codes);
    if (!document) {
        call.tell(fileNameOf(call.text(0)) + L" ne s'ouvre pas" + news, L" -> no document");
    } else if (!news.empty()) {
        call.tell(fileNameOf(call.text(0)) + L" s'ouvre" + news);
    }
    call.answer(document);
}

void ApplicationObject::activateDoc2(Call& call) {
    call.boolean(1);  // refuses an argument that is no Boolean, although it makes no difference
    DocumentObject* document = session_.activate(call.text(0));
    call.giveBack(2, document ? 0 : kActivateError);
    if (!document) call.tell(L"aucun document de ce nom n'est ouvert", L" -> no document");
    call.answer(document);
}

void ApplicationObject::closeDoc(Call& call) {
    const std::wstring name = call.text(0);
    const std::wstring whose = name.empty() ? L"le document actif" : fileNameOf(name);
    const Closing closing = session_.close(name);
    if (closing == Closing::ChangesLost) {
        call.tell(whose + L" est fermé, ses modifications sont perdues");
    }
    if (closing == Closing::NotOpen && !name.empty()) {
        call.tell(L"aucun document de ce nom n'est ouvert");
    }
}

void ApplicationObject::getSearchFolders(Call& call) {
    call.answer(session_.searchFolders(call.integer(0)));
}

void ApplicationObject::setSearchFolders(Call& call) {
    session_.setSearchFolders(call.integer(0), call.text(1));
    call.answer(true);
}

void ApplicationObject::getDocumentCount(Call& call) {
    call.answer(static_cast<std::int32_t>(session_.documents().size()));
}

void ApplicationObject::activeDoc(Call& call) { call.answer(session_.active()); }

void ApplicationObject::visible(Call& call) { call.answer(session_.visible()); }

void ApplicationObject::setVisible(Call& call) { session_.setVisible(call.boolean(0)); }
