#pragma once

#include "platform/automation.h"

/// An object that answers every call at once: a text to a question for one, else a document.
struct AnsweringObject : AutomationObject {
    Value call(std::wstring_view name, std::span<const Argument>, std::wstring_view) override {
        if (name == L"GetTitle") return std::wstring(L"piece");
        if (name == L"OpenDoc6" || name == L"ActivateDoc2") {
            return ObjectPtr(std::make_shared<AnsweringObject>());
        }
        return true;
    }
    void put(std::wstring_view, const Argument&) override {}
};

struct AnsweringAutomation : Automation {
    ObjectPtr attach(const std::wstring&) override { return std::make_shared<AnsweringObject>(); }
    ObjectPtr create(const std::wstring&) override { return std::make_shared<AnsweringObject>(); }
};
