#include "host/console/command_editor.h"

#include "host/console/command_runner.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

#include <filesystem>

namespace {

// The full path of a file that is there, GBK; empty when there is none.
std::string FullPath(const std::string& strFolder, const std::string& strName) {
    std::string utf8, gbk;
    if (!ResolvePath(strFolder, strName, &utf8)) return {};
    std::error_code error;
    if (!std::filesystem::is_regular_file(utf8, error)) return {};
    const std::filesystem::path full = std::filesystem::absolute(utf8, error).lexically_normal();
    return Utf8ToGbk(full.string(), &gbk) ? gbk : std::string();
}

} // namespace

CCommandEditor::CCommandEditor(CHost& host, std::string strRootGbk)
    : m_host(host)
    , m_strRootGbk(std::move(strRootGbk)) {
    SetEditorHost(this);
}

void CCommandEditor::Print(const std::string& strText) {
    m_host.m_answers.Write(ToUtf8(strText));
}

CPromptResult CCommandEditor::AskPoint(const std::string& strPrompt, const AcGePoint3d* pBase,
                                       AcGePoint3d* pPoint) {
    return m_host.m_input.AskPoint(ToUtf8(strPrompt), pBase, pPoint);
}

CPromptResult CCommandEditor::AskEntity(const std::string& strPrompt, AcDbObjectId* pId,
                                        AcGePoint3d* pPoint) {
    if (!m_host.m_drawings.CurrentDocument()) return CPromptResult::None;
    return m_host.m_input.AskEntity(m_host.Drawing(), ToUtf8(strPrompt), pId, pPoint);
}

CPromptResult CCommandEditor::AskSelection(const std::string& strPrompt, std::vector<AcDbObjectId>* pIds) {
    if (!m_host.m_drawings.CurrentDocument()) return CPromptResult::None;
    return m_host.m_input.AskSelection(m_host.Drawing(), ToUtf8(strPrompt), pIds);
}

CCommandResult CCommandEditor::RunCommand(const std::vector<std::string>& arWords) {
    return RunNestedCommand(m_host, arWords);
}

std::string CCommandEditor::FindFile(const std::string& strName) {
    std::string found = FullPath({}, strName);
    if (!found.empty() || IsAbsolutePath(strName)) return found;
    const std::string strBeside = m_host.m_drawings.FolderGbk();
    for (const std::string& strFolder : {strBeside, m_strRootGbk + "/Support", m_strRootGbk}) {
        if (strFolder.empty()) continue; // a drawing without a file
        found = FullPath(strFolder, strName);
        if (!found.empty()) break;
    }
    return found;
}
