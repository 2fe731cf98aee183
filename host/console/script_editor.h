#pragma once

#include "host/console/host.h"
#include "platform/acad/host_application.h"

/// The user's side of the editor in a scripted run.
class CScriptEditor final : public CEditorHost {
public:
    /// strRootGbk is the installation's root.
    CScriptEditor(CTextOutput& output, CHost& host, std::string strRootGbk);
    ~CScriptEditor() override { SetEditorHost(nullptr); }
    CScriptEditor(const CScriptEditor&) = delete;
    CScriptEditor& operator=(const CScriptEditor&) = delete;

    void Print(const std::string& strText) override;
    CPromptResult AskPoint(const std::string& strPrompt, AcGePoint3d* pPoint) override;
    CPromptResult AskEntity(const std::string& strPrompt, AcDbObjectId* pId, AcGePoint3d* pPoint) override;
    CPromptResult AskSelection(const std::string& strPrompt, std::vector<AcDbObjectId>* pIds) override;
    CCommandResult RunCommand(const std::vector<std::string>& arWords) override;
    std::string FindFile(const std::string& strName) override;

private:
    CTextOutput& m_output;
    CHost& m_host;
    std::string m_strRootGbk;
};
