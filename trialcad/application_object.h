#pragma once

#include <span>
#include <string>

#include "dispatch_object.h"

class Session;

/// The application object that clients find in the running object table.
class ApplicationObject : public DispatchObject {
 public:
    ApplicationObject(Session& session, std::wstring revision, MemberNames& names, CallDesk& desk);

    static std::span<const Member> members();

    void revisionNumber(Call& call);
    void getCurrentWorkingDirectory(Call& call);
    void setCurrentWorkingDirectory(Call& call);
    void openDoc6(Call& call);
    void activateDoc2(Call& call);
    void closeDoc(Call& call);
    void getSearchFolders(Call& call);
    void setSearchFolders(Call& call);
    void getDocumentCount(Call& call);
    void activeDoc(Call& call);
    void visible(Call& call);
    void setVisible(Call& call);

 private:
    Session& session_;
    std::wstring revision_;
};
