#include "tests/support/drawing.h"

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
    return m_bHasLinetypeFile && strName == "acad.lin" ? std::string(TERVO_TEST_DATA) + "/acad.lin"
                                                       : std::string();
}
