#pragma once

#include "host/console/host.h"
#include "platform/acad/host_application.h"

/// The user's side of the editor: what modules print and ask goes to the run's answers.
class CCommandEditor final : public CEditorHost {
public:
    /// strRootGbk is the installation's root.
    CCommandEditor(CHost& host, std::string strRootGbk);
    ~CCommandEditor() override { SetEditorHost(nullptr); }
    CCommandEditor(const CCommandEditor&) = delete;
    CCommandEditor& operator=(const CCommandEditor&) = delete;

    void Print(const std::string& strText) override;
    CPromptResult AskPoint(const std::string& strPrompt, const AcGePoint3d* pBase,
                           AcGePoint3d* pPoint) override;
    CPromptResult AskEntity(const std::string& strPrompt, AcDbObjectId* pId, AcGePoint3d* pPoint) override;
    CPromptResult AskSelection(const std::string& strPrompt, std::vector<AcDbObjectId>* pIds) override;
    CCommandResult RunCommand(const std::vector<std::string>& arWords) override;
    std::string FindFile(const std::string& strName) override;

private:
    CHost& m_host;
    std::string m_strRootGbk;
};
