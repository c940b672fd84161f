#pragma once

#include "cad/cad_session.h"
#include "common/encoding.h"
#include "fakes/fake_platform.h"
#include "tracking/tracking_ids.h"
#include "tracking/tracking_window.h"
#include "unit/unit_test.h"

/// The tracking window on a machine in memory, driven by its controls' events.
class TrackingFixture : public testing::Test {
 protected:
    using Answer = MessageBoxes::Answer;
    using Origin = TrackingWindow::Origin;
    static constexpr auto kYes = Answer::Yes;
    static constexpr auto kNo = Answer::No;
    /// The buttons, by what they do.
    static constexpr int kSave = IDC_FORM3_CMDSUIV, kSee = IDC_FORM3_CMDSUIVQUITTER,
                         kSkip = IDC_FORM3_CMDSUIVSAUTER, kBack = IDC_FORM3_CMDPRECEDENT,
                         kSaveList = IDC_FORM3_CMDFICHIERLISTE, kLeave = IDC_FORM3_CMDSORTIE,
                         kResume = IDC_FORM3_CMDREPA, kReset = IDC_FORM3_CMDCHARAZ,
                         kUndo = IDM_FORM3_REVENIR;
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
    /// returns the calls.
    std::wstring loadStates(const std::wstring& codes) {
        std::wstring text;
        wchar_t name = L'a';
        for (const wchar_t c : codes) text += c + (L"  c:\\" + std::wstring{name++}) + L"\r\n";
        load(text);
        return calls();
    }

    void click(int id) { window().click(id); }
    void clickAll(const std::vector<int>& ids) {
        for (const int id : ids) click(id);
    }
    /// Presses these buttons: the calls, all states, and what is shown.
    std::wstring after(const std::vector<int>& buttons) {
        clickAll(buttons);
        return calls() + L" | " + states() + L" | " + shown();
    }
    void select(const std::vector<int>& lines) {
        list().clearSelection();
        for (const int line : lines) list().select(line, true);
    }
    /// Selects lines and presses a command's button, saying Yes when it asks.
    void command(int button, const std::vector<int>& lines) {
        select(lines);
        machine.boxes.answers = {kYes};
        click(button);
        machine.boxes.answers.clear();
    }
    std::wstring report() {
        machine.fileDialogs.answer = L"c:\\r.csv";
        click(IDM_FORM3_RAPPORT);
        return machine.files.texts[L"c:\\r.csv"];
    }
    FakeWindow& window() { return machine.window(IDD_FORM3); }
    FakeListBox& list() { return window().listBox(IDC_FORM3_LIST1); }
    std::wstring text(int id) { return window().control(id).content; }
    CallJournal takeCalls() { return machine.automation.takeJournal(); }

    /// The record of kept marks; empty when there is none.
    std::string record() {
        const auto& records = machine.records.contents;
        return records.empty() ? std::string() : records.begin()->second;
    }
    std::wstring remark(int line) {
        return wideText(remarkText(work().lines[line].history.remark));
    }

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
    void switchOn(const wchar_t* key, const wchar_t* value = L"1") {
        machine.settings.write(L"tarnwick", L"options", key, value);
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
            const std::wstring path = call.substr(call.find(L'\\') + 1);
            const std::wstring name = path.substr(0, path.find(L'"'));
            if (call.starts_with(L"OpenDoc6(&\"c:")) all += L"+" + name;
            if (call.ends_with(L".save2(True)")) all += L"s";
            if (call == L"closedoc(\"\")") all += L"-";
            if (call.starts_with(L"closedoc(\"c:")) all += L"-" + name;
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
        for (const int id : buttons) EXPECT_EQ(window().control(id).enabled, first) << id;
        return first;
    }
};
