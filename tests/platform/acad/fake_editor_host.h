#pragma once

#include "platform/acad/host_application.h"

#include <map>
#include <optional>

/// Plays the user: prints into a text, answers points and picks as told, knows some files. Registered while
/// it lives.
class CFakeEditorHost : public CEditorHost {
public:
    CFakeEditorHost() { SetEditorHost(this); }
    ~CFakeEditorHost() override { SetEditorHost(nullptr); }
    CFakeEditorHost(const CFakeEditorHost&) = delete;
    CFakeEditorHost& operator=(const CFakeEditorHost&) = delete;

    void Print(const std::string& strText) override { m_strPrinted += strText; }
    CPromptResult AskPoint(const std::string& strPrompt, const AcGePoint3d* pBase,
                           AcGePoint3d* pPoint) override {
        m_ptBase = pBase ? std::optional(*pBase) : std::nullopt;
        m_strPrompt = strPrompt;
        if (m_answer == CPromptResult::Value) *pPoint = m_ptAnswer;
        return m_answer;
    }
    CPromptResult AskEntity(const std::string& strPrompt, AcDbObjectId* pId, AcGePoint3d* pPoint) override {
        if (m_answer == CPromptResult::Value) *pId = m_arPicked.at(0);
        return AskPoint(strPrompt, nullptr, pPoint);
    }
    CPromptResult AskSelection(const std::string& strPrompt, std::vector<AcDbObjectId>* pIds) override {
        m_strPrompt = strPrompt;
        *pIds = m_arPicked;
        return m_answer;
    }
    std::string FindFile(const std::string& strName) override {
        const auto found = m_mapFiles.find(strName);
        return found == m_mapFiles.end() ? std::string() : found->second;
    }

    std::string m_strPrinted, m_strPrompt;
    CPromptResult m_answer = CPromptResult::Value;
    std::optional<AcGePoint3d> m_ptBase; // of the point asked for last
    AcGePoint3d m_ptAnswer;
    std::vector<AcDbObjectId> m_arPicked;
    std::map<std::string, std::string> m_mapFiles;
};
