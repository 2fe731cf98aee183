#include "data/table_errors.h"

#include "data/show_message.h"

void ReportTableError(int nCode) {
    switch (nCode) {
    case TableError_Borehole:
        ShowMessage("不能打开勘探点数据表,请检查数据!");
        break;
    case TableError_RoutineTest:
        ShowMessage("不能打开常规试验表,请检查数据!");
        break;
    case TableError_Triaxial:
        ShowMessage("不能打开三轴剪切试验表!请检查!");
        break;
    case TableError_TriaxialItems:
        ShowMessage("不能打开三轴剪切试验项目表,请检查数据!");
        break;
    case TableError_Project:
        ShowMessage("不能打开工点信息数据表,请检查数据!");
        break;
    default:
        break;
    }
}
