#pragma once

#include "host/console/command_input.h"
#include "host/console/drawings.h"
#include "platform/acad/host_application.h"

/// The user's side of the editor in a scripted run.
class CScriptEditor final : public CEditorHost {
public:
    /// strRootGbk is the installation's root.
    CScriptEditor(CTextOutput& output, CCommandInput& input, const CDrawings& drawings,
                  std::string strRootGbk);
    ~CScriptEditor() override { SetEditorHost(nullptr); }
    CScriptEditor(const CScriptEditor&) = delete;
    CScriptEditor& operator=(const CScriptEditor&) = delete;

    void Print(const std::string& strText) override;
    CPromptResult AskPoint(const std::string& strPrompt, AcGePoint3d* pPoint) override;
    std::string FindFile(const std::string& strName) override;

private:
    CTextOutput& m_output;
    CCommandInput& m_input;
    const CDrawings& m_drawings;
    std::string m_strRootGbk;
};
