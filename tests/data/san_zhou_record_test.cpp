#include "data/san_zhou_record.h"

#include "data/criteria.h"
#include "tests/support/suite_fixture.h"

namespace {

class SanZhouRecord : public CSuiteEngineTest {
protected:
    void Insert(const std::string& strValues) {
        Execute("insert into z_c_SanZhou values(" + strValues + ")");
    }
    static int Open(CSanZhouRecord& record) {
        return record.OpenRows(record.QueryFor(SampleCriterion(1, "ZK1", "1-1")), 0, 1) &&
               record.MoveFirstRow() == 0;
    }
    static void StoreConsolidatedUndrained(CSanZhouRecord& record) {
        for (DBSTATUS* pStatus :
             {&record.m_dwStatusUUC, &record.m_dwStatusUUF, &record.m_dwStatusCDC, &record.m_dwStatusCDF})
            *pStatus = DBSTATUS_S_ISNULL;
        for (DBSTATUS* pStatus :
             {&record.m_dwStatusCUC, &record.m_dwStatusCUF, &record.m_dwStatusCUCE, &record.m_dwStatusCUFE})
            *pStatus = DBSTATUS_S_OK;
        record.m_fCUC = 12.5F;
        record.m_fCUF = 20.25F;
        record.m_fCUCE = 5.0F;
        record.m_fCUFE = 28.75F;
        GbkCopy(record.m_szSYRQ, sizeof record.m_szSYRQ, "2024.3.9");
    }
};

constexpr const char* g_pAll = "select * from z_c_SanZhou order by UUC is not null";

INSTANTIATE_TEST_SUITE_P(Engines, SanZhouRecord, TestEngines(), TestEngineName);

} // namespace

TEST_P(SanZhouRecord, BindsItsThirteenColumnsByPosition) {
    Insert("1,'ZK1','1-1','固结不排水剪','2024.3.9',6.5,7.5,8.5,9.5,10.5,11.5,12.5,13.5");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_nGCSY, 1);
    EXPECT_STREQ(record.m_szZKBH, "ZK1");
    EXPECT_STREQ(record.m_szQYBH, "1-1");
    EXPECT_STREQ(record.m_szSYFF, "固结不排水剪");
    EXPECT_STREQ(record.m_szSYRQ, "2024.3.9");
    const std::vector<float> arValues = {record.m_fUUC,  record.m_fUUF,  record.m_fCUC, record.m_fCUF,
                                         record.m_fCUCE, record.m_fCUFE, record.m_fCDC, record.m_fCDF};
    EXPECT_EQ(arValues, (std::vector<float>{6.5F, 7.5F, 8.5F, 9.5F, 10.5F, 11.5F, 12.5F, 13.5F}));
}

TEST_P(SanZhouRecord, TellsNullByTheStatusOfEachColumn) {
    Insert("1,'ZK1','1-1',NULL,NULL,0,NULL,1,NULL,1,NULL,1,NULL");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    const std::vector<DBSTATUS> arStatus = {
        record.m_dwStatusSYFF, record.m_dwStatusUUC, record.m_dwStatusUUF,
        record.m_dwStatusCUC,  record.m_dwStatusCUF, record.m_dwStatusCUCE,
        record.m_dwStatusCUFE, record.m_dwStatusCDC, record.m_dwStatusCDF};
    EXPECT_EQ(arStatus, (std::vector<DBSTATUS>{3, 0, 3, 0, 3, 0, 3, 0, 3}));
    EXPECT_STREQ(record.m_szSYFF, "");
    EXPECT_STREQ(record.m_szSYRQ, "");
}

TEST_P(SanZhouRecord, AStoreErasesTheValuesOfOtherMethods) {
    Insert("1,'ZK1','1-1','固结不排水剪',NULL,1,2,3,NULL,NULL,NULL,7,8");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    StoreConsolidatedUndrained(record);
    EXPECT_EQ(record.StoreRow(), 0);
    EXPECT_EQ(Rows(g_pAll), CTexts{"1|ZK1|1-1|固结不排水剪|2024.3.9|||12.5|20.25|5|28.75||"});
    EXPECT_EQ(Rows("select count(*) from z_c_SanZhou where UUC is null and UUF is null and CDC is null and "
                   "CDF is null"),
              CTexts{"1"});
}

TEST_P(SanZhouRecord, AStoreTouchesOneOfTwoRowsWithEqualKeys) {
    Insert("1,'ZK1','1-1','a',NULL,1,2,3,4,5,6,7,8");
    Insert("1,'ZK1','1-1','a',NULL,1,2,3,4,5,6,7,8");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    StoreConsolidatedUndrained(record);
    EXPECT_EQ(record.StoreRow(), 0);
    EXPECT_EQ(Rows(g_pAll),
              (CTexts{"1|ZK1|1-1|a|2024.3.9|||12.5|20.25|5|28.75||", "1|ZK1|1-1|a||1|2|3|4|5|6|7|8"}));
}

TEST_P(SanZhouRecord, AStoreKeepsTextsLongerThanTheBuffer) {
    const std::string strMethod(300, 'm');
    Insert("1,'ZK1','1-1','" + strMethod + "',NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL,NULL");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    StoreConsolidatedUndrained(record);
    EXPECT_EQ(record.StoreRow(), 0);
    EXPECT_EQ(Rows("select SYFF,CUC from z_c_SanZhou"), CTexts{strMethod + "|12.5"});
}

TEST_P(SanZhouRecord, ReadsOtherColumnOrdersSilentlyWrong) {
    Execute("drop table z_c_SanZhou");
    Execute("create table z_c_SanZhou(GCSY integer,ZKBH text,QYBH text,SYRQ text,SYFF text,UUF real,UUC "
            "real,CUC text,"
            "CUF real,CUCE real,CUFE real,CDC real,CDF real)");
    Insert("1,'ZK1','1-1','2024.3.9','固结不排水剪',6,7,'text',9,10,11,12,13");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_STREQ(record.m_szSYFF, "2024.3.9");
    EXPECT_STREQ(record.m_szSYRQ, "固结不排水剪");
    EXPECT_EQ(record.m_fUUC, 6.0F);
    EXPECT_EQ(record.m_fCUC, 0.0F);
    EXPECT_EQ(record.m_dwStatusCUC, DBSTATUS_S_OK);
}

TEST_P(SanZhouRecord, NamesTheRowThatAnotherProgramsLockKeptFromBeingStored) {
    Insert("1,'ZK1','1-1','a',NULL,1,2,3,4,5,6,7,8");
    const std::string strConnection = m_database.ConnectionText() + ";Lock Timeout=20";
    SetProject("Connect", strConnection.c_str());
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    const CDatabaseLock other(m_database);
    StoreConsolidatedUndrained(record);
    EXPECT_LT(record.StoreRow(), 0);
    EXPECT_EQ(m_arLines, CTexts{"z_c_SanZhou ZK1 1-1: locked by another program, row not stored"});
}
