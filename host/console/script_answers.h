#pragma once

#include "host/console/command_answers.h"
#include "host/console/text_output.h"

#include <istream>

/// The answers of a run: what was typed at the current document's command line by program, then the lines of
/// a script or of standard input. Comments are skipped, '\r' is dropped, a mark at the beginning too.
class CScriptAnswers final : public CCommandAnswers {
public:
    /// strName stands in messages. bAskFirst: the prompt is shown before the line is read, for an input
    /// whose end isn't known beforehand. bQuiet leaves out prompts and the answers read.
    CScriptAnswers(std::string strName, std::istream& input, CTextOutput& output, bool bAskFirst,
                   bool bQuiet);

    std::optional<std::string> Ask(const CQuestion& question) override;
    std::optional<std::string> NextCommandLine() override;
    void ShowAnswered(const std::string& strPrompt, const std::string& strAnswer) override;
    void Write(std::string_view text) override { m_output.Write(text); }
    void Print(const std::string& strLine) override { m_output.WriteLine(strLine); }
    /// Tells standard error `FILE:LINE: what`, after all that was printed so far.
    void Report(const std::string& strWhat) override;
    void Flush() override { m_output.Flush(); }

    int LinesRead() const { return m_nLine; }

private:
    std::optional<std::string> ReadLine();
    void ShowPrompt(const std::string& strPrompt);
    void ShowAnswer(const std::string& strAnswer);

    std::string m_strName;
    std::istream& m_input;
    CTextOutput& m_output;
    bool m_bAskFirst, m_bQuiet;
    int m_nLine = 0;
};
