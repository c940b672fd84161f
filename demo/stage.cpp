#include "demo/stage.h"

#include <algorithm>
#include <iostream>
#include <optional>

#include "demo/sample_documents.h"
#include "driver/text.h"
#include "driver/wait.h"
#include "driver/winapi.h"

namespace driver::demo {
namespace {

/// A place on the screen, as `import -crop` takes it.
std::string area(const RECT& place) {
    return std::to_string(place.right - place.left) + "x" +
           std::to_string(place.bottom - place.top) + "+" + std::to_string(place.left) + "+" +
           std::to_string(place.top);
}

}  // namespace

Stage::Stage(const std::filesystem::path& directory)
    : sandbox(directory), documents(createSampleDocuments(sandbox)), cad(sandbox), app(sandbox) {}

void Stage::tell(const std::string& step) const { std::cout << "\n* " << step << std::endl; }

void Stage::press(int button) const {
    std::cout << "  [" << app.textOf(button) << "]" << std::endl;
    app.click(button);
}

void Stage::showCallsUpTo(const std::string& text) {
    const auto holdsText = [&](const std::string& call) {
        return call.find(text) != std::string::npos;
    };
    std::vector<std::string> calls;
    waitFor("the call " + text, [&] {
        calls = cad.calls();
        calls.erase(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(callsShown_));
        return std::any_of(calls.begin(), calls.end(), holdsText);
    });
    for (const std::string& call : calls) {
        std::cout << "    CAD call  " << call << std::endl;
        ++callsShown_;
        if (holdsText(call)) break;
    }
}

void Stage::showLines(int list) const {
    for (const std::string& line : app.lines(list)) std::cout << "    | " << line << std::endl;
}

void Stage::showListFile() const { std::cout << sandbox.readList().value_or("(none)\n"); }

void Stage::showConfigurationFile() const {
    std::cout << sandbox.readConfigurations().value_or("(none)\n");
}

void Stage::showFile(const std::string& name) const {
    std::optional<std::string> text;
    waitFor("the file " + name, [&] {
        text = readFileBytes(sandbox.directory() / name);
        return text.has_value();
    });
    std::cout << *text << std::flush;
}

void Stage::picture(const std::string& name, HWND window, HWND behind) const {
    RECT place = placeOf(window);
    if (behind) {
        const RECT other = placeOf(behind);
        UnionRect(&place, &place, &other);
    }
    SetForegroundWindow(window);
    send(window, WM_NCACTIVATE, TRUE);  // pressing a button from outside leaves the title bar grey
    const std::filesystem::path request = sandbox.directory() / "picture.request";
    const std::filesystem::path draft = sandbox.directory() / "picture.draft";
    writeFileBytes(draft, name + " " + area(place) + "\n");
    std::filesystem::rename(draft, request);  // so that nobody reads half of it
    waitFor("the picture " + name, [&] { return !std::filesystem::exists(request); });
    std::cout << "    (picture " << name << ".png)" << std::endl;
}

}  // namespace driver::demo
