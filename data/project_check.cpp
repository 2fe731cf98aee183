#include "data/project_check.h"

#include "data/criteria.h"
#include "data/gong_cheng_record.h"
#include "data/show_message.h"
#include "data/table_errors.h"

int CheckProjectNumber(int nGCSY, const CString& strGCBH) {
    CGongChengRecord record;
    if (!record.OpenRows(record.QueryFor(ProjectCriterion(nGCSY)), 0, 1)) {
        ReportTableError(TableError_Project);
        return 0;
    }
    const bool bFound = record.MoveFirstRow() == 0;
    record.CloseRows();
    if (!bFound) {
        ShowMessage("打开工点信息数据表中不存在该工程!");
        return 0;
    }
    if (strGCBH != record.m_szGCBH) {
        ShowMessage("该工程工程编号已被修改,数据无法入库!");
        return 0;
    }
    return 1;
}
