// What the keyboard does in a window, and what a screen reader is told, on the real controls.

#include <windows.h>

#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "contract/contract_ids.h"
#include "platform/win32/process/message_pump.h"
#include "platform/win32/window/dialog_window.h"
#include "platform/win32/window/own_windows.h"
#include "platform/win32/window/win_gate_keeper.h"
#include "platform/win32/window/win_message_boxes.h"

namespace {

using RaisedEvents = std::vector<std::pair<int, Event>>;

int labelsReadOut = 0;

void CALLBACK onLiveRegion(HWINEVENTHOOK, DWORD, HWND label, LONG, LONG, DWORD, DWORD) {
    if (GetDlgCtrlID(label) == IDC_CONTRACT_LABEL) ++labelsReadOut;
}

class Keyboard : public testing::Test, private EventSink {
 protected:
    Keyboard() { window->show(); }

    void raise(int id, Event event) override { raised.emplace_back(id, event); }
    HWND item(int id) const { return GetDlgItem(handle, id); }
    /// The events raised up to now, those that wait for the end of a message included.
    RaisedEvents takeRaised() {
        for (int i = 0; i < 100 && raised.empty(); ++i) {
            handleWaitingMessages();
            Sleep(1);
        }
        return std::exchange(raised, {});
    }
    void pressInDroppedList(HWND list, std::initializer_list<int> keys) {
        SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
        for (const int key : keys) SendMessageW(list, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    }

    RaisedEvents raised;
    WinGateKeeper keeper;
    WinMessageBoxes boxes;
    EventGate gate{keeper, boxes};
    DialogFactory factory{gate};
    std::unique_ptr<Window> window =
        factory.create({.dialogId = IDD_CONTRACT, .liveId = IDC_CONTRACT_LABEL}, *this);
    HWND handle = ownWindows().front();
};

}  // namespace

TEST_F(Keyboard, EnterPressesTheFocusedButtonThoughItIsNotTheDefaultOne) {
    SetFocus(item(IDC_CONTRACT_BUTTON));
    SendMessageW(handle, WM_COMMAND, IDOK, 0);
    EXPECT_EQ(takeRaised(), (RaisedEvents{{IDC_CONTRACT_BUTTON, Event::Click}}));
}

TEST_F(Keyboard, ADroppedListCountsWhenItClosesAndNotWhenItIsGivenUp) {
    const std::wstring drives[] = {L"c:", L"d:", L"e:"};
    ComboBox& box = window->comboBox(IDC_CONTRACT_CHOSEN);
    HWND list = item(IDC_CONTRACT_CHOSEN);
    box.setLines(drives);
    box.selectLine(0);
    SetFocus(list);
    pressInDroppedList(list, {VK_DOWN, VK_DOWN, VK_ESCAPE});
    EXPECT_EQ(takeRaised(), RaisedEvents());
    EXPECT_EQ(box.selectedLine(), 0);
    pressInDroppedList(list, {VK_DOWN, VK_DOWN, VK_RETURN});
    EXPECT_EQ(takeRaised(), (RaisedEvents{{IDC_CONTRACT_CHOSEN, Event::Click}}));
    EXPECT_EQ(box.selectedLine(), 2);
}

TEST_F(Keyboard, ALiveLabelIsReadOutWhenItChanges) {
    HWINEVENTHOOK hook =
        SetWinEventHook(EVENT_OBJECT_LIVEREGIONCHANGED, EVENT_OBJECT_LIVEREGIONCHANGED, nullptr,
                        onLiveRegion, GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT);
    for (const wchar_t* text : {L"a", L"b", L"b"}) {
        window->control(IDC_CONTRACT_LABEL).setText(text);
    }
    for (int i = 0; i < 100 && labelsReadOut < 2; ++i) takeRaised();
    EXPECT_EQ(labelsReadOut, 2);
    UnhookWinEvent(hook);
}
