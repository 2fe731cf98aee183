// Record classes on tables that another tool laid out.

#include <filesystem>

#include "data/criteria.h"
#include "data/gong_cheng_record.h"
#include "data/san_zhou_csxm_record.h"
#include "data/san_zhou_record.h"
#include "tests/other_user.h"
#include "tests/support/suite_fixture.h"

namespace {

class ForeignTables : public CSuiteTest {
protected:
    /// Puts a table of this declaration in the place of the suite's; both hold one sample.
    void Replace(const std::string& strDeclaration) {
        Execute("drop table z_c_SanZhou");
        Execute(strDeclaration);
    }
    void Fill(const std::string& strTable) {
        Execute("insert into " + strTable + " values(1,'ZK1','1-1','固结排水剪',NULL,1,2,3,4,5,6,7.5,8.25)");
    }
    static int Open(CSanZhouRecord& record) {
        return record.OpenRows(record.QueryFor(SampleCriterion(1, "ZK1", "1-1")), 0, 1) &&
               record.MoveFirstRow() == 0;
    }
    /// Stores two values as the adopted-values path does.
    static int Store(CSanZhouRecord& record) {
        for (DBSTATUS* pStatus : {&record.m_dwStatusUUC, &record.m_dwStatusUUF, &record.m_dwStatusCUC,
                                  &record.m_dwStatusCUF, &record.m_dwStatusCUCE, &record.m_dwStatusCUFE})
            *pStatus = DBSTATUS_S_ISNULL;
        record.m_fCDC = 10.5F;
        record.m_fCDF = 30.25F;
        GbkCopy(record.m_szSYRQ, sizeof record.m_szSYRQ, "2024.3.9");
        return record.StoreRow();
    }
};

constexpr const char* g_pColumns = "GCSY,ZKBH,QYBH,SYFF,SYRQ,UUC,UUF,CUC,CUF,CUCE,CUFE,CDC,CDF";
constexpr const char* g_pStored = "1|ZK1|1-1|固结排水剪|2024.3.9|||||||10.5|30.25";

} // namespace

TEST_F(ForeignTables, WithoutTypesAndIndexReadAndStore) {
    Replace(std::string("create table z_c_SanZhou(") + g_pColumns + ")");
    Fill("z_c_SanZhou");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_fCDC, 7.5F);
    EXPECT_EQ(Store(record), 0);
    EXPECT_EQ(Rows("select * from z_c_SanZhou"), CTexts{g_pStored});
}

TEST_F(ForeignTables, WithOtherTypesFurtherColumnsAndIndicesReadAndStore) {
    Replace(
        "create table z_c_SanZhou(gcsy NUMERIC,zkbh NVARCHAR(50),qybh CHAR(20),syff CLOB,syrq CLOB,uuc "
        "DOUBLE,"
        "uuf TEXT,cuc FLOAT,cuf INT,cuce DECIMAL(8,2),cufe,cdc TEXT,cdf VARCHAR(20),note TEXT DEFAULT 'n',"
        "stamp INTEGER)");
    Execute("create unique index u on z_c_SanZhou(gcsy,zkbh,qybh)");
    Execute("insert into z_c_SanZhou "
            "values(1,'ZK1','1-1','固结排水剪',NULL,1,'2',3,4,5,6,'7.5','8.25','kept',9)");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_fUUF, 2.0F); // numbers that are stored as texts are numbers
    EXPECT_EQ(record.m_fCDF, 8.25F);
    EXPECT_EQ(Store(record), 0);
    EXPECT_EQ(Rows("select * from z_c_SanZhou"), CTexts{std::string(g_pStored) + "|kept|9"});
}

TEST_F(ForeignTables, WhoseRowsHaveNoNumberAreReadAndTellOfAStoreThatFails) {
    Replace(std::string("create table z_c_SanZhou(") + g_pColumns +
            ",primary key(GCSY,ZKBH,QYBH)) without rowid");
    Fill("z_c_SanZhou");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_fCDC, 7.5F);
    EXPECT_LT(Store(record), 0);
    EXPECT_EQ(m_arLines,
              CTexts{"z_c_SanZhou ZK1 1-1: the result is not the rows of one table, row not stored"});
    EXPECT_EQ(Rows("select CDC,SYRQ from z_c_SanZhou"), CTexts{"7.5|"});
}

TEST_F(ForeignTables, ThatAreViewsAreReadAndTellOfAStoreThatFails) {
    Replace(std::string("create table base(") + g_pColumns + ")");
    Execute(std::string("create view z_c_SanZhou as select ") + g_pColumns + " from base");
    Fill("base");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_EQ(record.m_fCDC, 7.5F);
    EXPECT_LT(Store(record), 0);
    ASSERT_EQ(m_arLines.size(), 1U);
    EXPECT_NE(m_arLines[0].find("ZK1 1-1: "), std::string::npos) << m_arLines[0];
    EXPECT_EQ(Rows("select CDC,SYRQ from base"), CTexts{"7.5|"});
}

TEST_F(ForeignTables, WithAnotherOrderOfTheReadingsAreReadSilentlyWrong) {
    Execute("drop table z_c_SanZhouCSXM");
    Execute("create table "
            "z_c_SanZhouCSXM(GCSY,ZKBH,QYBH,SHJHXH,SJBH,SYGD,WY,SYZJ,CLHXS,GJKXYL,CLHDS,ZXBX,JQPS,KXYL,"
            "GJPS,JLLX)");
    Execute("insert into z_c_SanZhouCSXM values(1,'ZK1','1-1',7,2,80,50,39.1,1,0,1,2,0,0,0,2)");
    CSanZhouCSXMRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor(ReadingsCriterion(1, "ZK1", "1-1")), 0, 1));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_EQ(record.m_nSJBH, 7);
    EXPECT_EQ(record.m_nSHJHXH, 2);
    EXPECT_EQ(record.m_fWY, 80.0F);
    EXPECT_EQ(record.m_fSYGD, 50.0F);
    EXPECT_TRUE(m_arBoxes.empty());
    EXPECT_TRUE(m_arLines.empty());
}

TEST_F(ForeignTables, ThatRefuseAWriteTellTheirReason) {
    Fill("z_c_SanZhou");
    Execute(
        "create trigger guard before update on z_c_SanZhou begin select raise(abort, 'closed year'); end");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record));
    EXPECT_LT(Store(record), 0);
    EXPECT_EQ(m_arLines, CTexts{"z_c_SanZhou ZK1 1-1: closed year, row not stored"});
}

TEST_F(ForeignTables, OfAReadOnlyFileAreReadAndTellOfAStoreThatFails) {
    Fill("z_c_SanZhou");
    m_pDatabase.reset();
    std::filesystem::permissions(m_strDatabase, std::filesystem::perms(0444));
    EXPECT_EQ(AsPlainUser(m_root,
                          [&] {
                              CSanZhouRecord record;
                              if (!Open(record) || record.m_fCDC != 7.5F) return 1;
                              if (Store(record) >= 0) return 2;
                              return m_arLines == CTexts{"z_c_SanZhou ZK1 1-1: attempt to write a readonly "
                                                         "database, row not stored"}
                                         ? 0
                                         : 3;
                          }),
              0);
}

TEST_F(ForeignTables, GoAwayAndComeBackBetweenTwoOpenings) {
    Execute("insert into x_GongCheng values(1,'A','甲',1,2)");
    m_pDatabase.reset();
    CGongChengRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor("GCSY = 1"), 0, 1));
    std::filesystem::rename(m_strDatabase, m_strDatabase + ".away");
    EXPECT_EQ(record.MoveFirstRow(), 0); // what is open stays
    CGongChengRecord other;
    EXPECT_EQ(other.OpenRows(other.QueryFor("GCSY = 1"), 0, 1), 0);
    EXPECT_FALSE(std::filesystem::exists(m_strDatabase));
    std::filesystem::rename(m_strDatabase + ".away", m_strDatabase);
    ASSERT_TRUE(other.OpenRows(other.QueryFor("GCSY = 1"), 0, 1));
    ASSERT_EQ(other.MoveFirstRow(), 0);
    EXPECT_STREQ(other.m_szGCMC, "甲");
}
