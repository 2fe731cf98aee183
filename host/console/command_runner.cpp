#include "host/console/command_runner.h"

#include "host/console/host_commands.h"
#include "host/console/redraw.h"
#include "host/console/texts.h"
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
    throw CRunFailure(EXIT_NO_SUCH_ANSWER, "unknown command: " + strName);
}

// True unless the command was cancelled.
bool Execute(CHost& host, const CFoundCommand& command) {
    try {
        if (command.m_pHost)
            command.m_pHost->m_pFunction(host);
        else
            command.m_pModule();
        if (!host.m_answers.HasFailed() && !host.m_input.WasCancelled()) host.m_input.End();
    } catch (const CCommandCancelled&) {
        return false;
    } catch (const CRunFailure& failure) {
        host.m_answers.Fail(failure.Status(), failure.what());
    }
    return !host.m_answers.HasFailed() && !host.m_input.WasCancelled();
}

// Escape where no command runs: there is nothing to cancel.
bool IsEscape(const std::vector<CWord>& words) {
    return words.size() == 1 && !words[0].m_bQuoted && words[0].m_strText == "cancel";
}

void RunLine(CHost& host, const std::string& strLine) {
    std::vector<CWord> words;
    std::string reason;
    if (!SplitWords(strLine, &words, &reason)) throw CRunFailure(EXIT_NO_SUCH_ANSWER, reason);
    if (words.empty() || IsEscape(words)) return;
    const CFoundCommand command = FindCommand(words[0].m_strText);
    words.erase(words.begin());
    // What a reactor asks is answered by lines: the words are laid out after it.
    host.m_input.Begin({});
    acedEditor->FireCommandWillStart(command.m_strGlobalName.c_str());
    if (host.m_answers.HasFailed()) return;
    host.m_input.Begin(std::move(words));
    host.Drawing().UndoLog().BeginStep();
    if (Execute(host, command))
        acedEditor->FireCommandEnded(command.m_strGlobalName.c_str());
    else
        acedEditor->FireCommandCancelled(command.m_strGlobalName.c_str());
    DrawChanged(host.Drawing());
}

} // namespace

void RunCommands(CHost& host) {
    while (!host.m_bQuit) {
        const std::optional<std::string> line = host.m_answers.NextCommandLine();
        if (!line) return;
        try {
            RunLine(host, *line);
        } catch (const CRunFailure& failure) {
            host.m_answers.Fail(failure.Status(), failure.what());
        }
        host.m_answers.Flush();
    }
}
