#pragma once

#include <array>
#include <memory>
#include <string>
#include <utility>

#include "ports/automation.h"

/// An object that answers every call at once: with a text if asked for one, otherwise with a
/// document.
struct AnsweringObject : ServedObject {
    explicit AnsweringObject(std::wstring directory = {})
        : workingDirectory(std::move(directory)) {}
    std::wstring workingDirectory;

    enum Member : std::int32_t { Title, Directory, Document, Other };

    CallResult lookUp(std::wstring_view name, std::int32_t& member) override {
        member = name == L"GetTitle" || name == L"RevisionNumber" ? Title
                 : name == L"GetCurrentWorkingDirectory"          ? Directory
                 : name == L"OpenDoc6" || name == L"ActivateDoc2" ? Document
                                                                  : Other;
        return 0;
    }
    CallResult invoke(std::int32_t member, Access, std::span<const Argument>,
                      ServersReply& reply) override {
        if (member == Title) reply.value = std::wstring(L"12.0");
        if (member == Directory) reply.value = workingDirectory;
        if (member == Document) reply.object = std::make_shared<AnsweringObject>();
        if (member == Other) reply.value = true;
        return 0;
    }
};

struct AnsweringServers : ObjectServers {
    explicit AnsweringServers(std::wstring directory) : workingDirectory(std::move(directory)) {}
    std::wstring workingDirectory;

    CallResult running(const std::wstring&, std::shared_ptr<ServedObject>& object) override {
        object = std::make_shared<AnsweringObject>(workingDirectory);
        return 0;
    }
    std::shared_ptr<ServedObject> make(const std::wstring&) override {
        return std::make_shared<AnsweringObject>();
    }
    CallResult runningNamed(const std::wstring&, std::shared_ptr<ServedObject>& object) override {
        return running({}, object);
    }
};
