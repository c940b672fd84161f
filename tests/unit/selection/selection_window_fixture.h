#pragma once

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "cad/cad_session.h"
#include "fakes/fake_exits.h"
#include "fakes/fake_platform.h"
#include "selection/selection_ids.h"
#include "selection/selection_window.h"

/// The selection window on a machine in memory, driven by its controls' events. The machine has
///   c:\a.SLDDRW
///   c:\plans      axe.slddrw, Bras.SLDPRT, corps.SLDASM, Zoe.SLDDRW; the working directory
///   c:\plans\moteur      bielle.SLDDRW, piston.SLDPRT
///   d:\b.SLDDRW
///   d:\doc        d.SLDDRW; the current directory of its drive
class SelectionFixture : public testing::Test {
 protected:
    using Lines = std::vector<std::wstring>;

    SelectionFixture();

    /// Builds and loads the window on a working directory.
    void load(const std::wstring& workingDirectory = L"c:\\plans");

    // What a user does.
    void click(int id) { window().click(id); }
    void type(const std::wstring& types);
    void chooseType(int line);
    void leaveTypes() { window().sink.raise(IDC_FORM1_TYPEF, Event::Validate); }
    void chooseDrive(int line);
    /// Double-clicks the line of the directory tree with this name.
    void openDirectory(const std::wstring& name);
    void tick(bool ticked);
    /// Highlights these lines of the list and no others.
    void highlight(const std::vector<int>& lines);

    // What a user sees.
    FakeWindow& window() { return machine.window(IDD_FORM1); }
    FakeControl& control(int id) { return window().control(id); }
    FakeListBox& list() { return window().listBox(IDC_FORM1_LIST1); }
    FakeComboBox& types() { return window().comboBox(IDC_FORM1_TYPEF); }
    bool ticked() { return window().checkBox(IDC_FORM1_SOUSREP).ticked; }
    std::wstring text(int id) { return control(id).content; }
    /// The list without its prefixes of 14 blanks, which all lines must have.
    Lines unchosen();
    /// The marks of the lines, one digit each.
    std::wstring marks();

    FakePlatform machine;
    FakeExits exits;
    CadSession cad{machine.desktop};
    std::unique_ptr<SelectionWindow> form;
};
