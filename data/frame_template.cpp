#include "data/frame_template.h"

#include "data/project_context.h"
#include "data/project_db.h"
#include "data/statement_batch.h"
#include "data/suite_statements.h"

int GetFrameTemplate(const CString& strFunction, CString* pFile, CString* pFolder) {
    CProjectDb config(SuiteDb_Config);
    if (!config.Open(FrameTemplateQuery(strFunction))) return 0;
    CString strRoot, strPath;
    GetRootPath(&strRoot);
    config.ReadField("FileName", pFile);
    config.ReadField("Path", &strPath);
    *pFolder = strRoot + strPath + "\\";
    return 1;
}

int SetFrameTemplate(const CString& strFunction, const CString& strFile) {
    CStringArray saStatements;
    saStatements.Add(SetFrameTemplateStatement(strFile, strFunction));
    return ExecuteBatch(saStatements, SuiteDb_Config);
}
