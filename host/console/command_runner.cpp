#include "host/console/command_runner.h"

#include "host/console/host_commands.h"
#include "host/console/redraw.h"
#include "platform/acad/ap_document_manager.h"
#include "platform/acad/command_stack.h"
#include "platform/acad/editor_reactor.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <algorithm>

namespace {

std::string UpperAscii(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return text;
}

/// A command found by its name: one of the host's, or one that a module registered.
struct CFoundCommand {
    std::wstring m_strGlobalName; // upper case
    const CHostCommand* m_pHost = nullptr;
    AcRxFunctionPtr m_pModule = nullptr;
};

CFoundCommand FindCommand(const std::string& strName) {
    const std::string upper = UpperAscii(strName);
    if (const CHostCommand* const pHost = FindHostCommand(upper)) return {WideFromGbk(upper), pHost, nullptr};
    std::string gbk;
    if (Utf8ToGbk(strName, &gbk))
        if (const CRegisteredCommand* const pModule = acedRegCmds->lookup(WideFromGbk(gbk).c_str()))
            return {UpperName(pModule->m_strGlobalName), nullptr, pModule->m_pFunction};
    RefuseAnswer("unknown command: " + strName);
}

CCommandResult Execute(CHost& host, const CFoundCommand& command) {
    try {
        if (command.m_pHost)
            command.m_pHost->m_pFunction(host);
        else
            command.m_pModule();
        if (!host.m_answers.HasFailed() && !host.m_input.WasCancelled()) host.m_input.End();
    } catch (const CCommandCancelled&) {
        return CCommandResult::Cancelled;
    } catch (const CRunFailure& failure) {
        host.m_answers.Fail(failure.Status(), failure.what());
    }
    if (host.m_answers.HasFailed()) return CCommandResult::Failed;
    return host.m_input.WasCancelled() ? CCommandResult::Cancelled : CCommandResult::Done;
}

void TellReactors(const CFoundCommand& command, CCommandResult result) {
    const ACHAR* const szName = command.m_strGlobalName.c_str();
    switch (result) {
    case CCommandResult::Done:
        return acedEditor->FireCommandEnded(szName);
    case CCommandResult::Cancelled:
        return acedEditor->FireCommandCancelled(szName);
    case CCommandResult::Failed:
        return acedEditor->FireCommandFailed(szName);
    }
}

/// The first word is the name.
CCommandResult RunWords(CHost& host, std::vector<CWord> words) {
    const CFoundCommand command = FindCommand(words[0].m_strText);
    if (command.m_pModule) host.Document(); // a module's command runs in a document
    if (command.m_pHost && command.m_pHost->m_bAlone && !acDocManagerPtr()->isApplicationContext())
        RefuseAnswer("not from within a command: " + words[0].m_strText);
    words.erase(words.begin());
    const CDocumentContext context;
    // What a reactor asks is answered by lines: the words are laid out after it.
    host.m_input.Begin({});
    acedEditor->FireCommandWillStart(command.m_strGlobalName.c_str());
    if (host.m_answers.HasFailed()) return CCommandResult::Failed;
    host.m_input.Begin(std::move(words));
    const CCommandResult result = Execute(host, command);
    TellReactors(command, result);
    return result;
}

// Escape where no command runs: there is nothing to cancel.
bool IsEscape(const std::vector<CWord>& words) {
    return words.size() == 1 && !words[0].m_bQuoted && words[0].m_strText == g_szEscape;
}

void BeginUndoStep(const CHost& host) {
    if (host.m_drawings.CurrentDocument()) host.Drawing().UndoLog().BeginStep();
}

void DrawWhatChanged(const CHost& host) {
    if (host.m_drawings.CurrentDocument()) DrawChanged(host.Drawing());
}

void RunLine(CHost& host, const std::string& strLine) {
    std::vector<CWord> words;
    std::string reason;
    if (!SplitWords(strLine, &words, &reason)) RefuseAnswer(reason);
    if (words.empty() || IsEscape(words)) return;
    BeginUndoStep(host);
    RunWords(host, std::move(words));
    DrawWhatChanged(host);
}

/// False when there is no further line.
bool RunNextLine(CHost& host) {
    const std::optional<std::string> line = host.m_answers.NextCommandLine();
    if (!line) return false;
    try {
        RunLine(host, *line);
    } catch (const CRunFailure& failure) {
        host.m_answers.Fail(failure.Status(), failure.what());
    }
    host.m_answers.Flush();
    return true;
}

bool HasTypedLine(const CHost& host) {
    AcApDocument* const pDocument = host.m_drawings.CurrentDocument();
    return pDocument && pDocument->TypedText().HasLine();
}

} // namespace

void RunCommands(CHost& host) {
    while (!host.m_bQuit && (!host.m_answers.HasFailed() || host.m_answers.GoesOnAfterFailure())) {
        if (acDocManagerPtr()->RunDeferredWork()) DrawWhatChanged(host);
        // A text is typed when the one before it has been read, so that each runs in its own document.
        if (!HasTypedLine(host) && acDocManagerPtr()->TypeNextText()) continue;
        if (!RunNextLine(host)) return;
    }
}

CCommandResult RunNestedCommand(CHost& host, const std::vector<std::string>& arWords) {
    if (host.m_answers.HasFailed()) return CCommandResult::Failed;
    std::vector<CWord> words;
    words.reserve(arWords.size());
    for (const std::string& strWord : arWords)
        words.push_back({ToUtf8(strWord), true});
    if (words[0].m_strText.empty()) return CCommandResult::Done; // Enter where no command runs
    const CNestedInput nested(host.m_input);
    try {
        return RunWords(host, std::move(words));
    } catch (const CRunFailure& failure) {
        host.m_answers.Fail(failure.Status(), failure.what());
        return CCommandResult::Failed;
    }
}
