#include "scenario.h"

#include <iostream>

namespace driver {

Scenario::Scenario() : cad(sandbox), app(sandbox) {}

void Scenario::TearDown() {
    if (!HasFailure()) return;
    std::cout << "-- windows\n"
              << app.describe() << "-- files\n"
              << sandbox.describe() << "-- settings\n"
              << settings.describe() << "-- calls received\n";
    for (const std::string& call : cad.calls()) std::cout << call << "\n";
}

void Scenario::writeListOf(const std::vector<std::string>& names) {
    for (const std::string& name : names) paths.push_back(sandbox.addDocument(name));
    sandbox.writeList(listOf(std::vector<std::string>(paths.size(), "0")));
}

std::string Scenario::listOf(const std::vector<std::string>& codes) const {
    std::string bytes;
    for (size_t i = 0; i < codes.size(); ++i) bytes += listLine(codes[i], paths[i]);
    return bytes;
}

void Scenario::startAndResume() {
    app.start();
    app.click(IDC_FORM2_CMDOK);
}

void Scenario::resume(const std::vector<std::string>& names,
                      const std::vector<std::string>& cadOptions) {
    writeListOf(names);
    cad.start(cadOptions);
    startAndResume();
}

std::vector<std::string> Scenario::saidOf(const std::string& documents) const {
    const auto file = sandbox.directory() / "documents.txt";
    writeFileBytes(file, documents);
    return {"--documents", utf8(file.wstring())};
}

void Scenario::startInDocuments(std::vector<std::string> cadOptions) {
    cadOptions.insert(cadOptions.end(),
                      {"--working-directory", utf8(sandbox.documents().wstring())});
    cad.start(cadOptions);
    app.start();
    app.window(kSelection);
}

void Scenario::expectCalls(const calls::Calls& expected) {
    const auto newCalls = [this] {
        const calls::Calls all = cad.calls();
        return calls::Calls(all.begin() + static_cast<std::ptrdiff_t>(callsSeen_), all.end());
    };
    EXPECT_EQ(eventually<calls::Calls>(expected, newCalls), expected);
    callsSeen_ += expected.size();
}

void Scenario::expectList(const std::string& bytes) const {
    EXPECT_EQ(eventually<std::string>(bytes, [this] { return sandbox.readList().value_or(""); }),
              bytes);
}

void Scenario::expectLines(int list, const Lines& lines) const {
    EXPECT_EQ(eventually<Lines>(lines, [&] { return app.lines(list); }), lines);
}

void Scenario::expectAlone(const char* caption) const {
    EXPECT_EQ(eventually<Lines>({caption}, [this] { return app.shownWindows(); }), Lines{caption});
}

std::string Scenario::exportReport() const {
    app.chooseInSystemMenu(kTracking, IDM_FORM3_RAPPORT);
    app.saveAsProposed("Exporter le rapport", "tarnwick-rapport.csv");
    std::string report;
    waitFor("the report", [&] {
        report = readFileBytes(sandbox.directory() / "tarnwick-rapport.csv").value_or("");
        return !report.empty();
    });
    return report;
}

void Scenario::waitUntilOpen(const std::string& path) const {
    app.waitForText(IDC_FORM3_TXTETAT, path);
    app.waitForCommandEnd(IDC_FORM3_LIST1, IDC_FORM3_CMDDESELECT);
}

std::string Scenario::expectFatalError(int number) {
    EXPECT_EQ(app.box().title(), "Tarnwick");
    EXPECT_EQ(app.box().buttons(), std::vector{IDOK});
    const std::string text = app.answerBox(IDOK);
    EXPECT_EQ(text.find("Erreur d'exécution '" + std::to_string(number) + "' :"), 0U) << text;
    EXPECT_EQ(app.waitForExit(), number);
    return text;
}

std::string listLine(const std::string& code, const std::string& path) {
    return code + "  " + path + "\r\n";
}

}  // namespace driver
