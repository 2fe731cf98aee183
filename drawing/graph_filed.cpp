#include "drawing/graph_filed.h"

#include "data/project_db.h"
#include "data/suite_statements.h"

CArray<CGraphFiled> g_arFields;

namespace {
CGraphFiled ReadCurrentRow(CProjectDb& config) {
    CGraphFiled field;
    config.ReadField("t_peizhi", &field.t_peizhi);
    config.ReadField("t_tablename", &field.t_tablename);
    config.ReadField("t_tablefield", &field.t_tablefield);
    config.ReadInt("t_type", &field.t_type);
    config.ReadField("t_fieldtype", &field.t_fieldtype);
    config.ReadField("t_Key", &field.t_Key);
    config.ReadInt("t_XiaoShu", &field.t_XiaoShu);
    if (field.t_Key.IsEmpty()) field.t_Key = field.t_tablefield;
    config.ReadField("t_Where", &field.t_Where);
    config.ReadInt("t_hb", &field.t_hb);
    config.ReadInt("t_LiuBai", &field.t_LiuBai);
    config.ReadField("t_OthInfo", &field.t_OthInfo);
    return field;
}
} // namespace

int LoadFieldConfig(const CString&) {
    g_arFields.RemoveAll();
    CProjectDb config(SuiteDb_Config);
    if (!config.Open(TitleFieldsQuery())) return 1;
    for (; !config.IsEof(); config.MoveNext())
        g_arFields.Add(ReadCurrentRow(config));
    return 1;
}
