#include "host/console/script_editor.h"

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

CScriptEditor::CScriptEditor(CTextOutput& output, CCommandInput& input, const CDrawings& drawings,
                             std::string strRootGbk)
    : m_output(output)
    , m_input(input)
    , m_drawings(drawings)
    , m_strRootGbk(std::move(strRootGbk)) {
    SetEditorHost(this);
}

void CScriptEditor::Print(const std::string& strText) {
    m_output.Write(ToUtf8(strText));
}

CPromptResult CScriptEditor::AskPoint(const std::string& strPrompt, AcGePoint3d* pPoint) {
    return m_input.AskPoint(ToUtf8(strPrompt), pPoint);
}

std::string CScriptEditor::FindFile(const std::string& strName) {
    std::string found = FullPath({}, strName);
    if (!found.empty() || IsAbsolutePath(strName)) return found;
    const std::string strBeside = m_drawings.FolderGbk();
    for (const std::string& strFolder : {strBeside, m_strRootGbk + "/Support", m_strRootGbk}) {
        if (strFolder.empty()) continue; // a drawing without a file
        found = FullPath(strFolder, strName);
        if (!found.empty()) break;
    }
    return found;
}
