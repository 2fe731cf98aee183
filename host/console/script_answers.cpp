#include "host/console/script_answers.h"

#include <iostream>

namespace {

constexpr const char* g_pCommandPrompt = "Command: ";

} // namespace

CScriptAnswers::CScriptAnswers(std::string strName, std::istream& input, CTextOutput& output, bool bAskFirst,
                               bool bQuiet)
    : m_strName(std::move(strName))
    , m_input(input)
    , m_output(output)
    , m_bAskFirst(bAskFirst)
    , m_bQuiet(bQuiet) {}

std::optional<std::string> CScriptAnswers::Ask(const CQuestion& question) {
    if (HasFailed()) return std::nullopt;
    if (std::optional<std::string> typed = TakeTyped(question.m_strPrompt)) return typed;
    ShowPrompt(question.m_strPrompt);
    std::optional<std::string> answer = ReadLine();
    if (answer) {
        ShowAnswer(*answer);
    } else {
        m_output.BeginLine();
        Fail(EXIT_INPUT_RAN_OUT, "the input ran out before an answer that is still needed");
    }
    return answer;
}

std::optional<std::string> CScriptAnswers::NextCommandLine() {
    if (HasFailed()) return std::nullopt;
    m_output.BeginLine();
    if (std::optional<std::string> typed = TakeTyped(g_pCommandPrompt)) return typed;
    if (m_bAskFirst) ShowPrompt(g_pCommandPrompt);
    std::optional<std::string> line = ReadLine();
    if (!line) {
        m_output.BeginLine();
        return std::nullopt;
    }
    if (!m_bAskFirst) ShowPrompt(g_pCommandPrompt);
    ShowAnswer(*line);
    return line;
}

void CScriptAnswers::ShowAnswered(const std::string& strPrompt, const std::string& strAnswer) {
    ShowPrompt(strPrompt);
    ShowAnswer(strAnswer);
}

void CScriptAnswers::Report(const std::string& strWhat) {
    m_output.Flush();
    std::cerr << m_strName << ":" << m_nLine << ": " << strWhat << std::endl;
}

std::optional<std::string> CScriptAnswers::ReadLine() {
    std::string line;
    while (std::getline(m_input, line)) {
        if (++m_nLine == 1 && line.starts_with("\xEF\xBB\xBF")) line.erase(0, 3);
        std::erase(line, '\r');
        if (!line.starts_with(';')) return line;
    }
    return std::nullopt;
}

void CScriptAnswers::ShowPrompt(const std::string& strPrompt) {
    if (m_bQuiet) return;
    m_output.Write(strPrompt);
    if (m_bAskFirst) m_output.Flush();
}

void CScriptAnswers::ShowAnswer(const std::string& strAnswer) {
    if (!m_bQuiet) m_output.Write(strAnswer + "\n");
}
