// The trial session: what it plays, and what it owes the machine that it runs on.

#include <oleauto.h>

#include "scenario.h"

namespace {

struct TrialSession : Scenario {
    static bool IsRegistered() {
        CLSID classId;
        return SUCCEEDED(CLSIDFromProgID(L"SldWorks.Application", &classId));
    }

    /// Tries to make a key that stays below the session's own.
    static LSTATUS MakeStableKey() {
        HKEY made = nullptr;
        return RegCreateKeyExW(HKEY_CLASSES_ROOT, L"SldWorks.Application\\Test", 0, nullptr, 0,
                               KEY_READ, nullptr, &made, nullptr);
    }
};

TEST_F(TrialSession, LeavesNoClassBehind) {
    cad.Start({"--hidden"});
    cad.Close();
    ASSERT_FALSE(IsRegistered());

    cad.Start({"--hidden"});
    EXPECT_TRUE(IsRegistered());
    EXPECT_EQ(MakeStableKey(), ERROR_CHILD_MUST_BE_VOLATILE);

    Send(cad.Window(), WM_ENDSESSION, FALSE);
    EXPECT_TRUE(IsRegistered());
    Send(cad.Window(), WM_ENDSESSION, TRUE);
    EXPECT_FALSE(IsRegistered());
    cad.Close();
}

struct ScriptedSession : Scenario {
    std::string File() const { return Utf8((sandbox.Directory() / "documents.txt").wstring()); }

    void WriteScript(const std::string& text) const { WriteFileBytes(Wide(File()), text); }

    /// Starts a session on a file of documents, in their directory.
    void StartOn(const std::string& script, std::vector<std::string> options = {}) {
        WriteScript(script);
        options.insert(options.end(), {"--documents", File(), "--working-directory",
                                       Utf8(sandbox.Documents().wstring())});
        cad.Start(options);
        session = cad.Application();
    }

    CallOutcome Call(const wchar_t* name, const std::vector<CallArgument>& arguments = {}) const {
        return CallByName(session.get(), name, arguments);
    }

    /// What opening and saving a document answers: "erreur/avertissement/enregistrement".
    std::string Answers(const std::string& path) {
        const OpenedDocument opened = OpenDocument(session.get(), path);
        const std::string codes =
            std::to_string(opened.error) + "/" + std::to_string(opened.warning) + "/";
        if (!opened.document) return codes + "rien";
        return codes + std::to_string(CallByName(opened.document.get(), L"save2", {true}).number);
    }

    ComPtr<IDispatch> session;
};

TEST_F(ScriptedSession, DocumentsAnswerAsTheirLinesSay) {
    const std::string locked = sandbox.AddDocument("un\\verrou.SLDPRT");
    const std::string readOnly = sandbox.AddDocument("lecture.SLDPRT");
    const std::string users = sandbox.AddDocument("deux\\ouvert.SLDPRT");
    SetFileAttributesW(Wide(readOnly).c_str(), FILE_ATTRIBUTE_READONLY);
    StartOn("\xEF\xBB\xBFrefus\xC3\xA9.SLDPRT;refuse=65536\r\n\n fois.SLDPRT ; refuse=0:1\n" +
            locked + ";save=16\nincomplet.SLDASM;error=2, warning=33\nOUVERT.SLDPRT;open");
    const std::vector<std::pair<std::string, std::string>> expected = {
        {sandbox.AddDocument("refus\xC3\xA9.SLDPRT"), "65536/0/rien"},
        {sandbox.AddDocument("fois.SLDPRT"), "0/0/rien"},
        {sandbox.AddDocument("fois.SLDPRT"), "0/0/0"},
        {sandbox.AddDocument("fois.SLDPRT"), "0/128/0"},
        {sandbox.AddDocument("un\\fois.SLDPRT"), "65536/0/rien"},
        {locked, "0/0/16"},
        {sandbox.AddDocument("incomplet.SLDASM"), "2/33/0"},
        {users, "0/128/0"},
        {readOnly, "0/2/2"},
        {"absent.SLDPRT", "2/0/rien"},
        {sandbox.AddDocument("autre.txt"), "1024/0/rien"},
    };
    for (const auto& [path, answers] : expected) EXPECT_EQ(Answers(path), answers) << path;
}

TEST_F(ScriptedSession, ClosingEndsTheDocumentAndKnowsNoOther) {
    const std::string users = sandbox.AddDocument("ouvert.SLDPRT");
    StartOn("ouvert.SLDPRT;open", {"--hide-endings"});
    EXPECT_EQ(Call(L"GetDocumentCount").number, 1);
    const ComPtr<IDispatch> document = OpenDocument(session.get(), users).document;
    EXPECT_EQ(CallByName(document.get(), L"GetTitle").text, "ouvert");

    EXPECT_EQ(Call(L"closedoc", {"autre.SLDPRT"}).code, S_OK);
    EXPECT_EQ(Call(L"closedoc", {users}).code, S_OK);
    EXPECT_EQ(Call(L"GetDocumentCount").number, 0);
    EXPECT_EQ(CallByName(document.get(), L"save2", {true}).code, RPC_E_DISCONNECTED);
    EXPECT_EQ(OpenDocument(session.get(), users).warning, 0) << "it is not the user's any more";
    EXPECT_EQ(Call(L"closedoc", {""}).code, S_OK);
    EXPECT_EQ(Call(L"GetDocumentCount").number, 0) << "without a name the active one is closed";
}

TEST_F(ScriptedSession, KeepsAWorkingDirectoryAndMayBearTheNameOfItsProcessAlone) {
    StartOn("", {"--pid-only"});
    CLSID classId;
    ComPtr<IUnknown> found;
    EXPECT_FALSE(SUCCEEDED(CLSIDFromProgID(L"SldWorks.Application", &classId)) &&
                 SUCCEEDED(GetActiveObject(classId, nullptr, found.put())));
    const std::string directory = Utf8(sandbox.Directory().wstring());
    EXPECT_TRUE(Call(L"SetCurrentWorkingDirectory", {directory}).number);
    EXPECT_FALSE(Call(L"SetCurrentWorkingDirectory", {directory + "\\aucun"}).number);
    EXPECT_EQ(Call(L"GetCurrentWorkingDirectory").text, directory);
}

TEST_F(ScriptedSession, ABadLineIsNamedAndEndsIt) {
    const std::vector<std::pair<std::string, std::string>> lines = {
        {"\na;refuse=x", "ligne 2"}, {"a;refuse", "refuse"},     {"a;open;save=-1", "save=-1"},
        {"a;refus=1", "refus=1"},    {"a;save=1:0", "save=1:0"}, {";open", ";open"},
    };
    for (const auto& [text, named] : lines) {
        WriteScript(text);
        const std::filesystem::path errors = sandbox.Directory() / "erreurs.txt";
        const Process refused(Sandbox::BuiltPrograms() / "tarnwick-trialcad.exe",
                              {L"--documents", Wide(File())}, sandbox.Directory(), errors);
        EXPECT_EQ(refused.WaitForExit(), 2U);
        const std::string told = ReadFileBytes(errors).value_or("");
        EXPECT_NE(told.find(named), told.npos) << told;
        EXPECT_EQ(told.find('\n'), told.size() - 1) << told;
    }
}

}  // namespace
