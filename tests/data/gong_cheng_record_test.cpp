#include "data/gong_cheng_record.h"

#include "data/criteria.h"
#include "tests/support/suite_fixture.h"

namespace {
class GongChengRecord : public CSuiteEngineTest {};
INSTANTIATE_TEST_SUITE_P(Engines, GongChengRecord, TestEngines(), TestEngineName);
} // namespace

TEST_P(GongChengRecord, BindsItsFiveColumns) {
    Execute("insert into x_GongCheng values(0,'GC-1','某工程',-5,1700000000)");
    CGongChengRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor(ProjectCriterion(0)), 0, 1));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_EQ(record.m_nGCSY, 0);
    EXPECT_STREQ(record.m_szGCBH, "GC-1");
    EXPECT_STREQ(record.m_szGCMC, "某工程");
    EXPECT_EQ(record.m_nGCBZ, -5);
    EXPECT_EQ(record.m_nGCSJ, 1700000000);
}

TEST_P(GongChengRecord, TakesColumnsWithoutStatusAsZeroWhereTheyAreNull) {
    Execute("insert into x_GongCheng values(1,'GC-1',NULL,NULL,NULL)");
    CGongChengRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor(ProjectCriterion(1)), 0, 1));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_STREQ(record.m_szGCMC, "");
    EXPECT_EQ(record.m_nGCBZ, 0);
}
