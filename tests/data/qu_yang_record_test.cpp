#include "data/qu_yang_record.h"

#include "data/criteria.h"
#include "tests/support/suite_fixture.h"

namespace {
class QuYangRecord : public CSuiteEngineTest {
protected:
    static int Open(CQuYangRecord& record) {
        return record.OpenRows(record.QueryFor(SampleCriterion(1, "ZK1", "1-1")), 0, 1) &&
               record.MoveFirstRow() == 0;
    }
};
INSTANTIATE_TEST_SUITE_P(Engines, QuYangRecord, TestEngines(), TestEngineName);
} // namespace

TEST_P(QuYangRecord, ReadsItsColumnsWhateverTheirOrderInTheTable) {
    Execute("drop table z_c_QuYang");
    Execute(
        "create table z_c_QuYang(QYYX real,QYSY real,qylx smallint,QYHSL real,QYHD real,QYSD real,QYBH text,"
        "ZKBH text,GCSY integer,more text)");
    Execute("insert into z_c_QuYang values(40.5,20.5,200,31.5,0.25,4.5,'1-1','ZK1',1,'x')");
    CQuYangRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_fQYSD, 4.5F);
    EXPECT_EQ(record.m_fQYHD, 0.25F);
    EXPECT_EQ(record.m_fQYHSL, 31.5F);
    EXPECT_EQ(record.m_nQYLX, 200);
    EXPECT_EQ(record.m_fQYSY, 20.5F);
    EXPECT_EQ(record.m_fQYYX, 40.5F);
}

TEST_P(QuYangRecord, ANullWaterContentLeavesTheOthersReadable) {
    Execute("insert into z_c_QuYang values(1,'ZK1','1-1',4.5,0.25,NULL,NULL,20.5,40.5)");
    CQuYangRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_dwStatusQYHSL, DBSTATUS_S_ISNULL);
    EXPECT_EQ(record.m_dwStatusQYSD, DBSTATUS_S_OK);
    EXPECT_EQ(record.m_dwStatusQYHD, DBSTATUS_S_OK);
    EXPECT_EQ(record.m_dwStatusQYSY, DBSTATUS_S_OK);
    EXPECT_EQ(record.m_dwStatusQYYX, DBSTATUS_S_OK);
    EXPECT_EQ(record.m_fQYYX, 40.5F);
}
