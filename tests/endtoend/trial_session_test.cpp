// The trial session: what it plays, and what it owes the machine that it runs on.

#include <oleauto.h>

#include "scenario.h"

using TrialSession = Scenario;

static bool isRegistered() {
    CLSID classId;
    return SUCCEEDED(CLSIDFromProgID(L"SldWorks.Application", &classId));
}

TEST_F(TrialSession, LeavesNoClassBehind) {
    for (const bool ends : {false, true}) {
        cad.start({"--hidden"});
        send(cad.window(), WM_ENDSESSION, ends);
        EXPECT_EQ(isRegistered(), !ends);
        cad.close();
        EXPECT_FALSE(isRegistered());
    }
}

struct ScriptedSession : Scenario {
    /// Starts a session on a file of documents, in their directory.
    void startOn(const std::string& script) {
        auto options = saidOf(script);
        options.insert(options.end(), {"--hide-endings", "--working-directory",
                                       utf8(sandbox.documents().wstring())});
        cad.start(options);
        session = cad.application();
    }

    CallOutcome call(const wchar_t* name, const std::vector<CallArgument>& arguments = {}) const {
        return callByName(session.get(), name, arguments);
    }

    /// What opening and saving a document answers: "erreur/avertissement/enregistrement".
    std::string answersFor(const std::string& path) {
        const OpenedDocument opened = openDocument(session.get(), path);
        const std::string codes =
            std::to_string(opened.error) + "/" + std::to_string(opened.warning) + "/";
        if (!opened.document) return codes + "rien";
        return codes + std::to_string(callByName(opened.document.get(), L"save2", {true}).number);
    }

    ComPtr<IDispatch> session;
};

TEST_F(ScriptedSession, DocumentsAnswerAsTheirLinesSay) {
    const auto document = [&](const char* name) { return sandbox.addDocument(name); };
    const std::string locked = document("un\\verrou.SLDPRT");
    const std::string readOnly = document("lecture.SLDPRT");
    SetFileAttributesW(wide(readOnly).c_str(), FILE_ATTRIBUTE_READONLY);
    startOn("\xEF\xBB\xBFrefus\xC3\xA9.SLDPRT;refuse=65536\r\n\n fois.SLDPRT ; refuse=0:1\n" +
            locked + ";save=16\nincomplet.SLDASM;error=2, warning=33\nOUVERT.SLDPRT;open");
    const std::vector<std::pair<std::string, std::string>> expected = {
        {document("refus\xC3\xA9.SLDPRT"), "65536/0/rien"},
        {document("fois.SLDPRT"), "0/0/rien"},
        {document("fois.SLDPRT"), "0/0/0"},
        {document("fois.SLDPRT"), "0/128/0"},
        {document("un\\fois.SLDPRT"), "65536/0/rien"},
        {locked, "0/0/16"},
        {document("incomplet.SLDASM"), "2/33/0"},
        {document("deux\\ouvert.SLDPRT"), "0/128/0"},
        {readOnly, "0/2/2"},
        {"absent.SLDPRT", "2/0/rien"},
        {document("autre.txt"), "1024/0/rien"},
    };
    for (const auto& [path, answers] : expected) EXPECT_EQ(answersFor(path), answers) << path;
}

TEST_F(ScriptedSession, ClosingEndsTheDocumentAndKnowsNoOther) {
    const std::string users = sandbox.addDocument("ouvert.SLDPRT");
    startOn("ouvert.SLDPRT;open");
    const auto count = [&] { return call(L"GetDocumentCount").number; };
    EXPECT_EQ(count(), 1);
    const ComPtr<IDispatch> document = openDocument(session.get(), users).document;
    EXPECT_EQ(callByName(document.get(), L"GetTitle").text, "ouvert");

    for (const std::string& path : {std::string("autre.SLDPRT"), users}) {
        EXPECT_EQ(call(L"closedoc", {path}).code, S_OK);
        EXPECT_EQ(count(), path == users ? 0 : 1);
    }
    EXPECT_EQ(callByName(document.get(), L"save2", {true}).code, RPC_E_DISCONNECTED);
    EXPECT_EQ(openDocument(session.get(), users).warning, 0) << "it is not the user's any more";
    EXPECT_EQ(call(L"closedoc", {""}).code, S_OK);
    EXPECT_EQ(count(), 0) << "without a name the active one is closed";
}

TEST_F(ScriptedSession, ABadLineIsNamedAndEndsIt) {
    const std::vector<std::pair<std::string, std::string>> lines = {
        {"\na;refuse=x", "ligne 2"}, {"a;refuse", "refuse"},     {"a;open;save=-1", "save=-1"},
        {"a;refus=1", "refus=1"},    {"a;save=1:0", "save=1:0"}, {";open", ";open"},
    };
    for (const auto& [text, named] : lines) {
        const std::filesystem::path errors = sandbox.directory() / "erreurs.txt";
        const Process refused(Sandbox::builtPrograms() / "tarnwick-trialcad.exe",
                              {L"--documents", wide(saidOf(text)[1])}, sandbox.directory(), errors);
        EXPECT_EQ(refused.waitForExit(), 2U);
        const std::string told = readFileBytes(errors).value_or("");
        EXPECT_NE(told.find(named), told.npos) << told;
        EXPECT_EQ(told.find('\n'), told.size() - 1) << told;
    }
}
