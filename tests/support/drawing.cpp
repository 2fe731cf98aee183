#include "tests/support/drawing.h"

#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

CTestDrawing::CTestDrawing() {
    SetTextMetrics(&m_metrics);
    SetEditorHost(this);
    acdbHostApplicationServices()->setWorkingDatabase(&m_database);
}

CTestDrawing::~CTestDrawing() {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    SetEditorHost(nullptr);
    SetTextMetrics(nullptr);
}

std::string CTestDrawing::FindFile(const std::string& strName) {
    if (m_bHasLinetypeFile && strName == "acad.lin") return std::string(TERVO_TEST_DATA) + "/acad.lin";
    std::string strPath, strFound;
    if (m_bFindsFiles && ResolvePath({}, strName, &strPath)) Utf8ToGbk(strPath, &strFound);
    return strFound;
}

CPromptResult CTestDrawing::AskEntity(const std::string& strPrompt, AcDbObjectId* pId, AcGePoint3d*) {
    m_strPrompt = strPrompt;
    if (m_arPicks.empty()) return CPromptResult::Cancel;
    *pId = m_arPicks.front();
    return CPromptResult::Value;
}

CPromptResult CTestDrawing::AskSelection(const std::string& strPrompt, std::vector<AcDbObjectId>* pIds) {
    m_strPrompt = strPrompt;
    *pIds = m_arPicks;
    return m_arPicks.empty() ? CPromptResult::Cancel : CPromptResult::Value;
}

CCommandResult CTestDrawing::RunCommand(const std::vector<std::string>& arWords) {
    m_arCommands.push_back(arWords.front());
    return CCommandResult::Done;
}

CEntities TakeOver(const AcDbVoidPtrArray& entitySet) {
    CEntities entities;
    for (void* const pEntity : entitySet)
        entities.emplace_back(static_cast<AcDbEntity*>(pEntity));
    return entities;
}

CEntities Exploded(const AcDbEntity& entity) {
    AcDbVoidPtrArray entitySet;
    const Acad::ErrorStatus status = entity.explode(entitySet);
    CEntities entities = TakeOver(entitySet);
    if (status != Acad::eOk) entities.clear();
    return entities;
}
