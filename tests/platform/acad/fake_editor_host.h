#pragma once

#include "platform/acad/host_application.h"

#include <map>

/// Plays the user: prints into a text, answers points as told, knows some files. Registered while it lives.
class CFakeEditorHost : public CEditorHost {
public:
    CFakeEditorHost() { SetEditorHost(this); }
    ~CFakeEditorHost() override { SetEditorHost(nullptr); }
    CFakeEditorHost(const CFakeEditorHost&) = delete;
    CFakeEditorHost& operator=(const CFakeEditorHost&) = delete;

    void Print(const std::string& strText) override { m_strPrinted += strText; }
    CPromptResult AskPoint(const std::string& strPrompt, AcGePoint3d* pPoint) override {
        m_strPrompt = strPrompt;
        if (m_answer == CPromptResult::Value) *pPoint = m_ptAnswer;
        return m_answer;
    }
    std::string FindFile(const std::string& strName) override {
        const auto found = m_mapFiles.find(strName);
        return found == m_mapFiles.end() ? std::string() : found->second;
    }

    std::string m_strPrinted, m_strPrompt;
    CPromptResult m_answer = CPromptResult::Value;
    AcGePoint3d m_ptAnswer;
    std::map<std::string, std::string> m_mapFiles;
};
