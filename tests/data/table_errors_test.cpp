#include "data/table_errors.h"

#include "tests/support/suite_fixture.h"

namespace {
class TableErrors : public CSuiteTest {};
} // namespace

TEST_F(TableErrors, ShowsTheTextOfEachCode) {
    for (int nCode = 1; nCode <= 5; ++nCode)
        ReportTableError(nCode);
    EXPECT_EQ(m_arBoxes, (CTexts{"不能打开勘探点数据表,请检查数据!", "不能打开常规试验表,请检查数据!",
                                 "不能打开三轴剪切试验表!请检查!", "不能打开三轴剪切试验项目表,请检查数据!",
                                 "不能打开工点信息数据表,请检查数据!"}));
}

TEST_F(TableErrors, ShowsNothingForAnyOtherCode) {
    for (const int nCode : {0, 6, -1})
        ReportTableError(nCode);
    EXPECT_TRUE(m_arBoxes.empty());
}
