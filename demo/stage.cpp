#include "demo/stage.h"

#include <algorithm>
#include <iostream>

#include "demo/sample_documents.h"
#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver::demo {
namespace {

/// What `import -crop` takes for a place on the screen.
std::string Area(const RECT& place) {
    return std::to_string(place.right - place.left) + "x" +
           std::to_string(place.bottom - place.top) + "+" + std::to_string(place.left) + "+" +
           std::to_string(place.top);
}

}  // namespace

Stage::Stage(const std::filesystem::path& directory)
    : sandbox(directory), documents(CreateSampleDocuments(sandbox)), cad(sandbox), app(sandbox) {}

void Stage::Tell(const std::string& step) const { std::cout << "\n* " << step << std::endl; }

void Stage::Press(int button) const {
    std::cout << "  [" << app.TextOf(button) << "]" << std::endl;
    app.Click(button);
}

void Stage::ShowCallsUpTo(const std::string& text) {
    const auto holdsText = [&](const std::string& call) {
        return call.find(text) != std::string::npos;
    };
    std::vector<std::string> calls;
    WaitFor("the call " + text, [&] {
        calls = cad.Calls();
        calls.erase(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(callsShown_));
        return std::any_of(calls.begin(), calls.end(), holdsText);
    });
    for (const std::string& call : calls) {
        std::cout << "    CAD call  " << call << std::endl;
        ++callsShown_;
        if (holdsText(call)) break;
    }
}

void Stage::ShowLines(int list) const {
    for (const std::string& line : app.Lines(list)) std::cout << "    | " << line << std::endl;
}

void Stage::ShowListFile() const { std::cout << sandbox.ReadList().value_or("(none)\n"); }

void Stage::ShowConfigurationFile() const {
    std::cout << sandbox.ReadConfigurations().value_or("(none)\n");
}

void Stage::ShowFile(const std::string& name) const {
    std::optional<std::string> text;
    WaitFor("the file " + name, [&] {
        text = ReadFileBytes(sandbox.Directory() / name);
        return text.has_value();
    });
    std::cout << *text << std::flush;
}

void Stage::Picture(const std::string& name, HWND window, HWND behind) const {
    RECT place = PlaceOf(window);
    if (behind) {
        const RECT other = PlaceOf(behind);
        UnionRect(&place, &place, &other);
    }
    SetForegroundWindow(window);
    Send(window, WM_NCACTIVATE, TRUE);  // a button pressed from outside leaves the title bar grey
    const std::filesystem::path request = sandbox.Directory() / "picture.request";
    const std::filesystem::path draft = sandbox.Directory() / "picture.draft";
    WriteFileBytes(draft, name + " " + Area(place) + "\n");
    std::filesystem::rename(draft, request);  // only now can it be seen, whole
    WaitFor("the picture " + name, [&] { return !std::filesystem::exists(request); });
    std::cout << "    (picture " << name << ".png)" << std::endl;
}

}  // namespace driver::demo
