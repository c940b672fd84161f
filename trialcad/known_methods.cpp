#include "known_methods.h"

#include "application_object.h"
#include "document_object.h"
#include "text.h"

namespace {

bool has(std::span<const Member> members, std::wstring_view name) {
    for (const Member& member : members)
        if (sameText(member.name, name)) return true;
    return false;
}

}  // namespace

bool isKnownMethod(std::wstring_view name) {
    return has(ApplicationObject::members(), name) || has(DocumentObject::members(), name);
}
