#pragma once
// Answers for tests: lines from a list, what was printed and how the run failed.

#include <deque>

#include "host/console/answers.h"

class CLineAnswers : public CAnswers {
public:
    explicit CLineAnswers(std::deque<std::string> lines)
        : m_lines(std::move(lines)) {}

    std::optional<std::string> Next(const std::string& strPrompt) override {
        m_strPrompts += strPrompt;
        if (m_status != EXIT_DONE || m_lines.empty()) return std::nullopt;
        std::string line = m_lines.front();
        m_lines.pop_front();
        return line;
    }
    void Print(const std::string& strLine) override { m_strPrinted += strLine + "\n"; }
    void Fail(CExitStatus status, const std::string& strWhat) override {
        if (m_status != EXIT_DONE) return;
        m_status = status;
        m_strFailure = strWhat;
    }

    std::deque<std::string> m_lines;
    std::string m_strPrompts, m_strPrinted, m_strFailure;
    CExitStatus m_status = EXIT_DONE;
};
