#pragma once

#include <optional>

#include "cad/cad_session.h"
#include "common/encoding.h"
#include "fakes/fake_platform.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"
#include "unit/unit_test.h"

/// The tracking window on a machine in memory, driven by its controls' events.
class TrackingFixture : public testing::Test {
 protected:
    using Origin = TrackingWindow::Origin;
    static constexpr auto kYes = MessageBoxes::Answer::Yes;
    static constexpr auto kNo = MessageBoxes::Answer::No;
    /// In the order in which they are saved.
    static constexpr int kOptionBoxes[] = {IDC_FORM3_CKMINIMISE, IDC_FORM3_CKSILENT,
                                           IDC_FORM3_CKRECONS, IDC_FORM3_CKRECONS2};

    TrackingFixture() {
        machine.automation.revision = L"12.0.1";
        machine.leaveWindowAt(L"toppos3", L"leftpos3", 300, -600);
        // No rebuild: the cases that are about it tick the boxes.
        machine.settings.write(L"tarnwick", L"startup", L"regcheck", L"1100");
    }

    /// Loads the window over a list file with this text. What that called stays in the journal.
    void load(const std::wstring& text, Origin origin = Origin::Resumed) {
        listFile() = text;
        machine.records.contents.clear();
        start(origin);
    }

    /// Loads the window as a next run would: with the list file and the marks kept as they are.
    void start(Origin origin = Origin::Resumed) {
        cad.emplace(machine.desktop);
        cad->attach(machine.automation);
        cad->identify();
        takeCalls();
        form = std::make_unique<TrackingWindow>(machine.platform, machine.places, *cad,
                                                machine.programFiles);
        form->Form_Load(origin);
    }

    /// Loads a list of the documents c:\a, c:\b … whose states are these one-character codes, and
    /// forgets the calls.
    void loadStates(const std::wstring& codes) {
        std::wstring text;
        wchar_t name = L'a';
        for (const wchar_t code : codes) {
            text += code + (L"  c:\\" + std::wstring{name++}) + L"\r\n";
        }
        load(text);
        takeCalls();
    }

    void click(int id) { window().click(id); }
    void clickAll(const std::vector<int>& ids) {
        for (const int id : ids) click(id);
    }
    FakeWindow& window() { return machine.window(IDD_FORM3); }
    FakeListBox& list() { return window().listBox(IDC_FORM3_LIST1); }
    std::wstring text(int id) { return window().control(id).content; }
    CallJournal takeCalls() { return machine.automation.takeJournal(); }

    /// The loading options as they are saved: a digit for each box.
    void tickOptions(const std::wstring& options) {
        for (std::size_t i = 0; i < options.size(); ++i) {
            window().checkBox(kOptionBoxes[i]).ticked = options[i] == L'1';
        }
    }
    /// The pointer, the number shown of how many, and the document.
    std::wstring shown() {
        return text(IDC_FORM3_NUMFICHCOUR) + L": " + text(IDC_FORM3_NBFICH1) + L'/' +
               text(IDC_FORM3_CPTFICHIER1) + L' ' + text(IDC_FORM3_TXTETAT);
    }
    /// All states, separated by blanks.
    std::wstring states() {
        std::wstring result;
        for (int i = 0; i <= work().last; ++i) {
            result += (i == 0 ? L"" : L" ") + wideText(work().lines[i].code.text());
        }
        return result;
    }
    /// Whether the six advance buttons are enabled; they must be alike.
    bool canAdvance() {
        return enabledAlike({IDC_FORM3_CMDSUIV, IDC_FORM3_CMDSUIVQUITTER, IDC_FORM3_CMDSUIVSAUTER,
                             IDC_FORM3_CMD1, IDC_FORM3_CMD2, IDC_FORM3_CMD3});
    }
    /// Whether the two step-back buttons are enabled; they must be alike.
    bool canStepBack() { return enabledAlike({IDC_FORM3_CMDPRECEDENT, IDC_FORM3_CMD4}); }

    /// Switched on for the windows that are loaded from now on.
    void switchOn(const wchar_t* key) {
        machine.settings.write(L"tarnwick", L"options", key, L"1");
    }
    FakeDocument& document(const wchar_t* name) { return machine.automation.documents[name]; }
    void refuse(std::wstring_view names, std::int32_t code = 65536) {
        for (const wchar_t name : names) {
            document(std::wstring(1, name).c_str()) = {.opens = false, .errorCode = code};
        }
    }

    /// The calls that open, save and close documents, without their arguments but for the name.
    std::wstring calls() {
        std::wstring all;
        for (const std::wstring& call : takeCalls()) {
            const bool opens = call.starts_with(L"OpenDoc6(");
            if (opens) all += L"+" + call.substr(call.find(L"c:\\") + 3, 1);
            if (call.find(L"save2") != std::wstring::npos) all += L"s";
            if (call == L"closedoc(\"\")") all += L"-";
            if (call.starts_with(L"closedoc(\"c")) all += L"-" + call.substr(call.size() - 3, 1);
            if (call.starts_with(L"SetCurrentWorkingDirectory")) all += L"d";
        }
        return all;
    }

    const WorkList& work() { return form->pass().list(); }
    std::wstring& listFile() { return machine.files.texts[machine.programFiles.list]; }

    FakePlatform machine;
    std::optional<CadSession> cad;
    std::unique_ptr<TrackingWindow> form;

 private:
    bool enabledAlike(const std::vector<int>& buttons) {
        const bool first = window().control(buttons.front()).enabled;
        for (const int button : buttons) {
            EXPECT_EQ(window().control(button).enabled, first) << button;
        }
        return first;
    }
};

/// The calls that open c:\b, in silence and without a rebuild unless told otherwise.
inline CallJournal openingB(const std::wstring& mode = L"1:i4") {
    return {L"OpenDoc6(&\"c:\\b\", &0:i2, " + mode + L", \"\", &0:i4, &0:i4)",
            L"ActivateDoc2(&\"c:\\b\", True, &0:i4)",
            L"Visible = True",
            L"b.GetTitle()",
            L"b.GetTitle()",
            L"b.ViewZoomtofit2()"};
}
