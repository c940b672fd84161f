#include "scenario.h"

#include <iostream>

namespace driver {

Scenario::Scenario() : cad(sandbox), app(sandbox) {}

void Scenario::TearDown() {
    if (!HasFailure()) return;
    std::cout << "-- windows\n"
              << app.Describe() << "-- files\n"
              << sandbox.Describe() << "-- settings\n"
              << settings.Describe() << "-- calls received\n";
    for (const std::string& call : cad.Calls()) std::cout << call << "\n";
}

void Scenario::WriteListOf(const std::vector<std::string>& names) {
    for (const std::string& name : names) paths.push_back(sandbox.AddDocument(name));
    sandbox.WriteList(ListOf(std::vector<std::string>(paths.size(), "0")));
}

std::string Scenario::ListOf(const std::vector<std::string>& codes) const {
    std::string bytes;
    for (size_t i = 0; i < codes.size(); ++i) bytes += ListLine(codes[i], paths[i]);
    return bytes;
}

void Scenario::StartAndResume() {
    app.Start();
    app.Click(IDC_FORM2_CMDOK);
}

void Scenario::StartInDocuments(std::vector<std::string> cadOptions) {
    cadOptions.insert(cadOptions.end(),
                      {"--working-directory", Utf8(sandbox.Documents().wstring())});
    cad.Start(cadOptions);
    app.Start();
    app.Window(kSelection);
}

void Scenario::ExpectCalls(const calls::Calls& expected) {
    const auto newCalls = [this] {
        calls::Calls all = cad.Calls();
        all.erase(all.begin(),
                  all.begin() + static_cast<std::ptrdiff_t>(std::min(callsSeen_, all.size())));
        return all;
    };
    EXPECT_EQ(Eventually<calls::Calls>(expected, newCalls), expected);
    callsSeen_ += expected.size();
}

void Scenario::ExpectList(const std::string& bytes) const {
    EXPECT_EQ(Eventually<std::string>(bytes, [this] { return sandbox.ReadList().value_or(""); }),
              bytes);
}

void Scenario::ExpectLines(int list, const Lines& lines) const {
    EXPECT_EQ(Eventually<Lines>(lines, [&] { return app.Lines(list); }), lines);
}

void Scenario::ExpectAlone(const char* caption) const {
    EXPECT_EQ(Eventually<Lines>({caption}, [this] { return app.ShownWindows(); }), Lines{caption});
}

std::string Scenario::ExpectFatalError(int number) {
    const ModalBox box = app.Box();
    const std::string text = box.Text();
    const std::string start = "Erreur d'exécution '" + std::to_string(number) + "' :";
    EXPECT_EQ(box.Title(), "Tarnwick");
    EXPECT_EQ(text.substr(0, start.size()), start);
    EXPECT_EQ(box.Buttons(), std::vector{IDOK});
    box.Answer(IDOK);
    EXPECT_EQ(app.WaitForExit(), number);
    return text;
}

std::string ListLine(const std::string& code, const std::string& path) {
    return code + "  " + path + "\r\n";
}

}  // namespace driver
