#pragma once

#include "cad/cad_session.h"
#include "common/text.h"
#include "fakes/fake_exits.h"
#include "fakes/fake_platform.h"
#include "selection/selection_ids.h"
#include "selection/selection_window.h"
#include "unit/unit_test.h"

/// The selection window on a machine in memory, driven by its controls' events. The machine has
///   c:\a.SLDDRW
///   c:\plans      axe.slddrw, Bras.SLDPRT, corps.SLDASM, Zoe.SLDDRW; the working directory
///   c:\plans\moteur      bielle.SLDDRW, piston.SLDPRT
///   d:\b.SLDDRW
///   d:\doc        d.SLDDRW; the current directory of its drive
struct SelectionFixture : testing::Test {
    SelectionFixture() {
        machine.files.add({L"c:\\a.SLDDRW", L"c:\\plans\\axe.slddrw", L"c:\\plans\\Bras.SLDPRT",
                           L"c:\\plans\\corps.SLDASM", L"c:\\plans\\Zoe.SLDDRW",
                           L"c:\\plans\\moteur\\bielle.SLDDRW", L"c:\\plans\\moteur\\piston.SLDPRT",
                           L"d:\\b.SLDDRW", L"d:\\doc\\d.SLDDRW"});
        machine.files.presentDrives = {L'c', L'd'};
        machine.files.currentDirectories[L'd'] = L"d:\\doc";
        machine.leaveWindowAt(L"toppos", L"leftpos", 300, -600);
    }

    /// Builds and loads the window on a working directory.
    void load(const std::wstring& workingDirectory = L"c:\\plans") {
        machine.automation.workingDirectory = workingDirectory;
        cad.attach(machine.automation);
        cad.identify();
        form = std::make_unique<SelectionWindow>(machine.platform, machine.places, cad,
                                                 machine.programFiles, exits);
        window().listBox(IDC_FORM1_REPERT).severalSelectable = false;
        form->Form_Load();
        window().show();
    }

    // What a user does.
    void click(int id) { window().click(id); }
    void type(const std::wstring& typed) {
        types().content = typed;
        window().sink.raise(IDC_FORM1_TYPEF, Event::Change);
    }
    void choose(int comboBox, int line) {
        window().comboBox(comboBox).selectLine(line);
        click(comboBox);
    }
    void leaveTypes() { window().sink.raise(IDC_FORM1_TYPEF, Event::Validate); }
    /// Double-clicks the line of the directory tree with this name.
    void openDirectory(const std::wstring& name) {
        FakeListBox& tree = window().listBox(IDC_FORM1_REPERT);
        for (int i = 0; i < tree.count(); ++i) {
            if (trimmed(tree.line(i)) == name) tree.select(i, true);
        }
        window().sink.raise(IDC_FORM1_REPERT, Event::DoubleClick);
    }
    void tick(bool ticked) {
        window().checkBox(IDC_FORM1_SOUSREP).ticked = ticked;
        click(IDC_FORM1_SOUSREP);
    }
    /// Highlights these lines of the list and no others, and presses the button.
    void toggle(const std::vector<int>& lines) {
        list().clearSelection();
        for (const int line : lines) list().select(line, true);
        click(IDC_FORM1_CMDCOCHE);
    }

    // What a user sees.
    FakeWindow& window() { return machine.window(IDD_FORM1); }
    FakeControl& control(int id) { return window().control(id); }
    FakeListBox& list() { return window().listBox(IDC_FORM1_LIST1); }
    FakeComboBox& types() { return window().comboBox(IDC_FORM1_TYPEF); }
    bool ticked() { return window().checkBox(IDC_FORM1_SOUSREP).ticked; }
    std::wstring text(int id) { return control(id).content; }
    /// The list without its prefixes of 14 blanks, which all lines must have.
    Texts unchosen() {
        Texts result;
        for (const std::wstring& line : list().texts()) {
            EXPECT_EQ(line.substr(0, 14), std::wstring(14, L' '));
            result.push_back(line.substr(14));
        }
        return result;
    }
    /// The marks of the lines, one digit each.
    std::wstring marks() {
        std::wstring result;
        for (const auto& line : list().lines) result += std::to_wstring(line.data);
        return result;
    }

    FakePlatform machine;
    FakeExits exits;
    CadSession cad{machine.desktop};
    std::unique_ptr<SelectionWindow> form;
};
