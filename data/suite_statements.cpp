#include "data/suite_statements.h"

#include "data/sql_text.h"

const char* const g_pszChartFunction = "三轴剪试验曲线";

CString PeopleQuery(const CString& strDrawingClass) {
    CString strQuery;
    strQuery.Format("select * from g_peizhi_people where cgt='%s'", SqlText(strDrawingClass).GetString());
    return strQuery;
}

CString DrawingClassesQuery() {
    return "select distinct CGT from g_peizhi_people";
}

CString FrameTemplateQuery(const CString& strFunction) {
    CString strQuery;
    strQuery.Format(
        "SELECT FileName,Path FROM g_TervoTempletConfig WHERE GCBZ = -1 AND Fun = '%s' AND Type = '图框'",
        SqlText(strFunction).GetString());
    return strQuery;
}

CString SetFrameTemplateStatement(const CString& strFile, const CString& strFunction) {
    CString strStatement;
    strStatement.Format(
        "UPDATE g_TervoTempletConfig SET FileName='%s' WHERE GCBZ = -1 AND Fun = '%s' AND Type = '图框'",
        SqlText(strFile).GetString(), SqlText(strFunction).GetString());
    return strStatement;
}

CString TitleFieldsQuery() {
    return "select * from t_GraphTYPZ  where t_tablename <> 'NoTable' ";
}
