#include "tracking/list_command_texts.h"

namespace {

constexpr wchar_t kHelpFile[] = L"DEMO.HLP";
constexpr int kHelpContext = 1000;

}  // namespace

MessageBoxContent boxOf(const Question& question) {
    return {.text = std::wstring(question.firstLine) + L"\n\r" + question.secondLine,
            .title = question.title,
            .buttons = MessageBoxContent::Buttons::YesNo,
            .icon = MessageBoxContent::Icon::Stop,
            .defaultButton = 2,
            .helpFile = kHelpFile,
            .helpContext = kHelpContext};
}

MessageBoxContent missingSelectionBox(const wchar_t* text) {
    return {.text = text,
            .title = L"Manque sélection ",
            .helpFile = kHelpFile,
            .helpContext = kHelpContext};
}
