#pragma once

#include "ports/files.h"
#include "ports/machine.h"
#include "ports/window.h"
#include "unit/unit_test.h"

/// A platform, real or fake, on which the same checks are run: what they find on both, the tests
/// of the forms may rely on.
class Machine {
 public:
    virtual ~Machine() = default;

    /// A shown window with the controls of contract_ids.h.
    virtual Window& window() = 0;
    virtual Settings& settings() = 0;
    virtual Files& files() = 0;
    virtual RecordFiles& records() = 0;

    /// An empty directory that goes with the machine, without a trailing backslash.
    virtual std::wstring directory() = 0;
    virtual void addDirectory(const std::wstring& path) = 0;
    /// Gives a file or directory the hidden attribute and, if wanted, the system one.
    virtual void hide(const std::wstring& path, bool asSystem = false) = 0;

    /// How many events the window has raised.
    virtual int eventsRaised() = 0;
};

/// The machine of the platform that the checks are built for.
std::unique_ptr<Machine> makeMachine();

/// A check on a machine of its own. What code changes in its window raises no event, whatever it
/// is.
struct ContractTest : testing::Test {
    ~ContractTest() override { EXPECT_EQ(machine->eventsRaised(), 0); }

    std::wstring path(const std::wstring& name) const { return directory + L'\\' + name; }

    /// The names in a directory, sorted; those of directories end with a backslash, those left out
    /// begin with a question mark.
    Texts namesIn(const std::wstring& where) {
        Texts names;
        files.visit(where, [&](const DirectoryEntry& entry) {
            names.push_back((entry.isLeftOut ? L"?" : L"") + std::wstring(entry.name) +
                            (entry.isDirectory ? L"\\" : L""));
        });
        std::ranges::sort(names);
        return names;
    }

    std::unique_ptr<Machine> machine = makeMachine();
    Window& window = machine->window();
    Files& files = machine->files();
    std::wstring directory = machine->directory();
};
