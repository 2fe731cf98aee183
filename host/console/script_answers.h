#pragma once

#include "host/console/answers.h"
#include "host/console/text_output.h"

#include <istream>

/// How a run failed, as `FILE:LINE: what` tells it.
struct CRunFault {
    CExitStatus m_status;
    int m_nLine;
    std::string m_strWhat;
};

/// The answers of a run: what was typed at the current document's command line by program, then the lines of
/// a script or of standard input. Comments are skipped, '\r' is dropped, a mark at the beginning too.
class CScriptAnswers final : public CAnswers {
public:
    /// strName stands in messages. bAskFirst: the prompt is shown before the line is read, for an input
    /// whose end isn't known beforehand. bQuiet leaves out prompts and the answers read.
    CScriptAnswers(std::string strName, std::istream& input, CTextOutput& output, bool bAskFirst,
                   bool bQuiet);

    std::optional<std::string> Next(const std::string& strPrompt) override;
    void Print(const std::string& strLine) override { m_output.WriteLine(strLine); }
    void Fail(CExitStatus status, const std::string& strWhat) override;

    /// The next line for the command prompt. Here the end of the input is the end of the run, no failure.
    std::optional<std::string> NextCommandLine();
    /// Shows an answer that stood on the command's line, as if it had been read at this prompt.
    void ShowAnswered(const std::string& strPrompt, const std::string& strAnswer);

    /// Tells standard error `FILE:LINE: what`, after all that was printed so far.
    void Report(int nLine, const std::string& strWhat) const;
    void ReportHere(const std::string& strWhat) const { Report(m_nLine, strWhat); }
    void Flush() const { m_output.Flush(); }

    bool HasFailed() const { return m_fault.has_value(); }
    const std::optional<CRunFault>& Fault() const { return m_fault; }

private:
    std::optional<std::string> TakeTyped(const std::string& strPrompt);
    std::optional<std::string> ReadLine();
    void ShowPrompt(const std::string& strPrompt);
    void ShowAnswer(const std::string& strAnswer);

    std::string m_strName;
    std::istream& m_input;
    CTextOutput& m_output;
    bool m_bAskFirst, m_bQuiet;
    int m_nLine = 0;
    std::optional<CRunFault> m_fault;
};
