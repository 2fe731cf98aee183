#include "drawing/shared_fields.h"

#include "commands/text_lists.h"
#include "data/project_db.h"
#include "data/sql_text.h"
#include "drawing/graph_filed.h"

#include <algorithm>
#include <vector>

CMap<CString, const CString&, CString, const CString&> g_mapValues;

namespace {
constexpr char g_cSeparator = ',';
constexpr int g_nMostDecimals = 99; // more would only take memory

using CKinds = CMap<CString, const CString&, CString, const CString&>; // by column

/// Fields that are read by one query; the lists are joined texts, as the query takes them.
struct CFieldGroup {
    CString m_strTable;
    CString m_strColumns;
    CString m_strKeys;
    std::vector<int> m_arDecimals;
    Adesk::Int32 m_nScope;
};

void AddToGroups(const CGraphFiled& field, std::vector<CFieldGroup>& groups) {
    const auto group = std::ranges::find(groups, field.t_tablename, &CFieldGroup::m_strTable);
    const bool bJoins = field.t_type <= g_nScopeBorehole;
    if (group == groups.end() || !bJoins) {
        groups.push_back(
            {field.t_tablename, field.t_tablefield, field.t_peizhi, {field.t_XiaoShu}, field.t_type});
        return;
    }
    group->m_strColumns += g_cSeparator + field.t_tablefield;
    group->m_strKeys += g_cSeparator + field.t_peizhi;
    group->m_arDecimals.push_back(field.t_XiaoShu);
}

CString Condition(Adesk::Int32 nScope, const CString& strGCSY, const CString& strZKBH) {
    CString strCondition;
    if (nScope == g_nScopeProject) strCondition.Format("where gcsy = %s", strGCSY.GetString());
    if (nScope == g_nScopeBorehole)
        strCondition.Format("where gcsy = %s and zkbh = '%s'", strGCSY.GetString(),
                            SqlText(strZKBH).GetString());
    return strCondition;
}

CString ReadNumber(CProjectDb& query, const CString& strColumn, int nDecimals) {
    CString strNumber;
    double dValue = 0.0;
    if (query.ReadDouble(strColumn, &dValue))
        strNumber.Format("%.*f", std::clamp(nDecimals, 0, g_nMostDecimals), dValue);
    return strNumber;
}

CString ReadText(CProjectDb& query, const CString& strColumn) {
    CString strText;
    query.ReadField(strColumn, &strText);
    return strText;
}

void ReadGroup(CProjectDb& query, const CFieldGroup& group, const CStringArray& columns,
               const CKinds& kinds) {
    CStringArray keys;
    SplitText(group.m_strKeys, g_cSeparator, keys);
    // Columns and keys with a separator of their own shift the places of those behind them.
    for (int i = 0; i < std::min(columns.GetSize(), keys.GetSize()); ++i) {
        const CKinds::CPair* const pKind = kinds.PLookup(columns[i]);
        if (!pKind) continue;
        const auto nPlace = static_cast<std::size_t>(i);
        const int nDecimals = nPlace < group.m_arDecimals.size() ? group.m_arDecimals[nPlace] : 0;
        g_mapValues.SetAt(keys[i], pKind->value == g_pKindText ? ReadText(query, columns[i])
                                                               : ReadNumber(query, columns[i], nDecimals));
    }
}
} // namespace

void FillSharedValues(const CString& strGCSY, const CString& strZKBH) {
    std::vector<CFieldGroup> groups;
    CKinds kinds;
    for (const CGraphFiled& field : g_arFields) {
        if (!field.IsQueried() || !field.IsShared()) continue;
        AddToGroups(field, groups);
        kinds.SetAt(field.t_tablefield, field.t_fieldtype);
    }
    g_mapValues.RemoveAll();
    for (const CFieldGroup& group : groups) {
        CStringArray columns;
        SplitText(group.m_strColumns, g_cSeparator, columns);
        if (columns.IsEmpty()) continue;
        CString strStatement;
        strStatement.Format("select %s from %s %s", group.m_strColumns.GetString(),
                            group.m_strTable.GetString(),
                            Condition(group.m_nScope, strGCSY, strZKBH).GetString());
        CProjectDb query(group.m_nScope == g_nScopeConfig ? SuiteDb_Config : SuiteDb_Project);
        if (query.Open(strStatement)) ReadGroup(query, group, columns, kinds);
    }
}
