#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/automation.h"

/// The calls received by all fake objects, in order, as texts: `name(argument, …)`, texts in
/// quotes, numbers with their type, by-reference arguments marked &; a document's calls carry its
/// name in front.
using CallJournal = std::vector<std::wstring>;

/// An object that records its calls and answers them from a table of functions by method name.
struct FakeObject : AutomationObject {
    using Answer = std::function<Value(std::span<const Argument>)>;

    explicit FakeObject(CallJournal& calls, std::wstring prefix = {})
        : journal(calls), namePrefix(std::move(prefix)) {}

    CallJournal& journal;
    std::wstring namePrefix;
    std::map<std::wstring, Answer, std::less<>> answers;

    Value call(std::wstring_view name, std::span<const Argument> arguments,
               std::wstring_view resultClass) override;
    void put(std::wstring_view name, const Argument& value) override;
};

/// A running CAD application whose documents open and close, and a file-system object.
struct FakeAutomation : Automation {
    CallJournal journal;
    bool documentsOpen = true;  ///< false: opening and activating give no document
    std::wstring revision = L"12.0.0";
    std::wstring workingDirectory = L"c:\\plans";
    std::wstring searchFolders;
    Value setSearchFoldersResult = true;
    std::function<bool(const std::wstring&)> fileExists = [](const std::wstring&) { return false; };

    /// What a method does instead of what it usually does, by its name.
    std::map<std::wstring, FakeObject::Answer, std::less<>> overrides;

    ObjectPtr attach(const std::wstring& progId) override;
    ObjectPtr create(const std::wstring& progId) override;

    /// The calls since the last time this was asked.
    CallJournal takeJournal() { return std::exchange(journal, {}); }

 private:
    ObjectPtr makeApplication();
    ObjectPtr makeFileSystem();
    Value document(const std::wstring& path);
};
