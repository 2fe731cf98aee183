#include "drawing/single_field.h"

#include "commands/text_lists.h"
#include "data/project_db.h"
#include "data/sql_text.h"

namespace {
constexpr char g_cPairSeparator = ',';
constexpr char g_cCodeSeparator = '|';

using CLabels = CMap<CString, const CString&, CString, const CString&>; // by code

/// A field of a project takes no further condition.
CString Statement(const CGraphFiled& field, const CString& strGCSY, const CString& strZKBH) {
    CString strCondition;
    if (field.t_type == g_nScopeProject) strCondition.Format("where GCSY = %s", strGCSY.GetString());
    if (field.t_type == g_nScopeBorehole)
        strCondition.Format("where gcsy = %s and zkbh = '%s' %s", strGCSY.GetString(),
                            SqlText(strZKBH).GetString(), field.t_Where.GetString());
    CString strStatement;
    strStatement.Format("select %s from %s %s", field.t_tablefield.GetString(), field.t_tablename.GetString(),
                        strCondition.GetString());
    strStatement.Replace("[GCSY]", strGCSY);
    return strStatement;
}

void ReadLabels(const CString& strPairs, CLabels& labels) {
    CStringArray pairs;
    SplitText(strPairs, g_cPairSeparator, pairs);
    for (const CString& strPair : pairs) {
        CStringArray parts;
        SplitText(strPair, g_cCodeSeparator, parts);
        if (parts.GetSize() > 1) labels.SetAt(parts[0], parts[1]);
    }
}

/// The labels of all rows, in order; a code without one leaves its place empty.
CString JoinedLabels(const CGraphFiled& field, CProjectDb& query) {
    CLabels labels;
    ReadLabels(field.t_OthInfo, labels);
    CString strJoined;
    for (; !query.IsEof(); query.MoveNext()) {
        CString strCode, strLabel;
        query.ReadField(field.t_Key, &strCode);
        labels.Lookup(strCode, strLabel);
        strJoined += strLabel + g_cPairSeparator;
    }
    return strJoined.TrimRight(g_cPairSeparator);
}
} // namespace

CString SingleFieldValue(const CGraphFiled& field, const CString& strGCSY, const CString& strZKBH) {
    CString strValue;
    CProjectDb query(SuiteDb_Project);
    if (!query.Open(Statement(field, strGCSY, strZKBH))) return strValue;
    if (field.t_fieldtype == g_pKindLabels) return JoinedLabels(field, query);
    double dValue = 0.0;
    if (field.t_fieldtype == g_pKindText || field.t_fieldtype == g_pKindBlock)
        query.ReadField(field.t_Key, &strValue);
    else if (query.ReadDouble(field.t_Key, &dValue))
        strValue.Format("%0.2f", dValue);
    return strValue;
}
