#include "drawing/title_fields.h"

#include "data/date_text.h"
#include "drawing/graph_filed.h"
#include "drawing/shared_fields.h"
#include "drawing/single_field.h"

namespace {
void Add(const char* pKey, const CString& strValue, CStringArray& saKeys, CStringArray& saValues) {
    saKeys.Add(pKey);
    saValues.Add(strValue);
}

CString Number(int nNumber) {
    CString strNumber;
    strNumber.Format("%d", nNumber);
    return strNumber;
}
} // namespace

int FillFieldValues(const CString& strGCSY, CString strZKBH, CStringArray& saKeys, CStringArray& saValues) {
    strZKBH.Remove('*');
    saKeys.RemoveAll();
    saValues.RemoveAll();
    FillSharedValues(strGCSY, strZKBH);
    for (CGraphFiled& field : g_arFields) {
        g_mapValues.Lookup(field.t_peizhi, field.t_value);
        if (field.IsQueried() && !field.IsShared()) field.t_value = SingleFieldValue(field, strGCSY, strZKBH);
        Add(field.t_peizhi, field.t_value, saKeys, saValues);
    }
    return 1;
}

int BuildSheetFields(const CString& strGCSY, const CString& strZKBH, CStringArray& saKeys,
                     CStringArray& saValues, int nPage, int nPages) {
    LoadFieldConfig("");
    FillFieldValues(strGCSY, strZKBH, saKeys, saValues);
    Add("[YH]", Number(nPage), saKeys, saValues);
    Add("[YS]", Number(nPages), saKeys, saValues);
    for (int i = 0; i < saKeys.GetSize(); ++i) {
        if (saKeys[i] == "[WJBH]") saValues[i] += "/土工";
        if (saKeys[i] == "[ZKBH]") saValues[i] = strZKBH;
    }
    Add("[DQRQ]", DateText(CTime::GetCurrentTime()), saKeys, saValues);
    return 1;
}
