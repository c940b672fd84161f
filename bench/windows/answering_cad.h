#pragma once

#include <string>
#include <utility>

#include "ports/automation.h"

/// An object that answers every call at once: a text to a question for one, else a document.
struct AnsweringObject : AutomationObject {
    explicit AnsweringObject(std::wstring directory = {})
        : workingDirectory(std::move(directory)) {}
    std::wstring workingDirectory;

    Value call(std::wstring_view name, std::span<const Argument>, std::wstring_view) override {
        if (name == L"GetTitle" || name == L"RevisionNumber") return std::wstring(L"12.0");
        if (name == L"GetCurrentWorkingDirectory") return workingDirectory;
        if (name == L"OpenDoc6" || name == L"ActivateDoc2") {
            return ObjectPtr(std::make_shared<AnsweringObject>());
        }
        return true;
    }
    void put(std::wstring_view, const Argument&) override {}
};

struct AnsweringAutomation : Automation {
    explicit AnsweringAutomation(std::wstring directory) : workingDirectory(std::move(directory)) {}
    std::wstring workingDirectory;

    ObjectPtr attach(const std::wstring&) override {
        return std::make_shared<AnsweringObject>(workingDirectory);
    }
    ObjectPtr attachNamed(const std::wstring&, const std::wstring& progId) override {
        return attach(progId);
    }
    ObjectPtr create(const std::wstring&) override { return std::make_shared<AnsweringObject>(); }
};
