#pragma once

#include <functional>
#include <map>

#include "fakes/fake_services.h"
#include "fakes/fake_waiting.h"
#include "rules/late_binding.h"

/// The calls received by all fake objects, in order, as texts: `name(argument, …)`, texts in
/// quotes, numbers with their type, by-reference arguments marked &; a document's calls carry its
/// name in front.
using CallJournal = std::vector<std::wstring>;

/// What the session says of a document.
struct FakeDocument {
    bool opens = true;
    std::int32_t errorCode = 0, warningCode = 0;
    Value saved = std::int32_t{0};
    std::wstring fails = {};  ///< the method that does, for it
    std::wstring kind = {};   ///< objects of a kind have numbers of their own for their members
};

/// A running CAD application whose documents open and close, and a file-system object.
struct FakeAutomation : ObjectServers {
    using Answer = std::function<Value(std::span<const Argument>)>;

    CallJournal journal;
    CallResult attaching = 0;  ///< what it answers who attaches to it
    std::wstring revision = L"12.0.0";
    std::wstring workingDirectory = L"c:\\plans";
    std::wstring searchFolders;
    Value setSearchFoldersResult = true;
    std::function<bool(const std::wstring&)> fileExists = [](const std::wstring&) { return false; };

    std::map<std::wstring, FakeDocument> documents;  ///< by their names, those that are not plain

    /// What a method does instead of what it usually does, by its name.
    std::map<std::wstring, Answer, std::less<>> overrides;

    std::function<void()> beforeEach = [] {};  ///< looks on before a call arrives
    CallResult running(const std::wstring& progId, std::shared_ptr<ServedObject>& object) override;
    CallResult runningNamed(const std::wstring& beginning,
                            std::shared_ptr<ServedObject>& object) override;
    std::shared_ptr<ServedObject> make(const std::wstring& progId) override;

    std::vector<std::pair<std::wstring, std::wstring>> lookedUp;  ///< members' kinds and names
    FakeMessageBoxes boxes;
    FakeWaiting waiting;

    /// It is driven by name, as the real one.
    operator Automation&() { return byName_; }

    /// The calls since the last time this was asked.
    CallJournal takeJournal() { return std::exchange(journal, {}); }

 private:
    struct Object;

    /// What the object of this name answers to a call.
    ServersReply answer(const std::wstring& object, std::wstring_view name,
                        std::span<const Argument> arguments);

    /// What it says of a document.
    FakeDocument saidOf(const std::wstring& document) const;

    Patience patience_{waiting, boxes, waiting.judge};
    Automation byName_{*this, patience_};
};
