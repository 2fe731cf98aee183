#include "data/record_accessor.h"

#include <filesystem>
#include <string>

#include "data/criteria.h"
#include "data/gong_cheng_record.h"
#include "data/qu_yang_record.h"
#include "data/san_zhou_csxm_record.h"
#include "data/san_zhou_record.h"
#include "data/tu_ceng_record.h"
#include "tests/support/suite_fixture.h"

namespace {

class RecordAccessor : public CSuiteEngineTest {
protected:
    template <class Record>
    static int Open(Record& record, const CString& strCriterion) {
        return record.OpenRows(record.QueryFor(strCriterion), 0, 1);
    }
};

/// Over an engine whose database is a file.
class RecordAccessorOnFile : public RecordAccessor {};

INSTANTIATE_TEST_SUITE_P(Engines, RecordAccessorOnFile, testing::Values(TestEngine::Sqlite), TestEngineName);
INSTANTIATE_TEST_SUITE_P(Engines, RecordAccessor, TestEngines(), TestEngineName);

} // namespace

TEST_P(RecordAccessor, PutsTheCriterionIntoTheTablesQuery) {
    EXPECT_EQ(CSanZhouRecord().QueryFor("GCSY = 1"),
              CString("SELECT * FROM z_c_SanZhou WHERE GCSY > -1 and GCSY = 1;"));
    EXPECT_EQ(CSanZhouCSXMRecord().QueryFor("a"),
              CString("SELECT * FROM z_c_SanZhouCSXM WHERE GCSY > -1 and a;"));
    EXPECT_EQ(
        CQuYangRecord().QueryFor("a"),
        CString(
            "SELECT GCSY,ZKBH,QYBH,QYSD,QYHD,QYHSL,QYLX,QYSY,QYYX FROM z_c_QuYang WHERE GCSY > -1 and a;"));
    EXPECT_EQ(CTuCengRecord().QueryFor("a"),
              CString("SELECT GCSY,ZKBH,TCCDSD,TCHD,TCMC FROM z_g_TuCeng WHERE GCSY > -1 and a;"));
    EXPECT_EQ(CGongChengRecord().QueryFor("a"),
              CString("SELECT GCSY,GCBH,GCMC,GCBZ,GCSJ FROM x_GongCheng WHERE GCSY > -1 and a;"));
    EXPECT_EQ(CGongChengRecord().QueryFor("GCBH = '%s%d'"),
              CString("SELECT GCSY,GCBH,GCMC,GCBZ,GCSJ FROM x_GongCheng WHERE GCSY > -1 and GCBH = '%s%d';"));
}

TEST_P(RecordAccessor, ReadsRowByRowToTheEnd) {
    Execute("insert into x_GongCheng values(1,'A','甲',1,2),(2,'B','乙',3,4)");
    CGongChengRecord record;
    ASSERT_TRUE(Open(record, "GCSY > 0 ORDER BY GCSY"));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_STREQ(record.m_szGCBH, "A");
    ASSERT_EQ(record.MoveNextRow(), 0);
    EXPECT_STREQ(record.m_szGCBH, "B");
    EXPECT_STREQ(record.m_szGCMC, "乙");
    EXPECT_EQ(record.m_nGCBZ, 3);
    EXPECT_EQ(record.m_nGCSJ, 4);
    EXPECT_NE(record.MoveNextRow(), 0);
}

TEST_P(RecordAccessor, AnEmptyTableOpensAndHasNoRow) {
    CGongChengRecord record;
    ASSERT_TRUE(Open(record, "GCSY = 1"));
    EXPECT_NE(record.MoveFirstRow(), 0);
    EXPECT_LT(record.StoreRow(), 0);
}

TEST_P(RecordAccessor, LeavesOutRowsOfNoProject) {
    Execute("insert into x_GongCheng values(-1,'A','',0,0)");
    CGongChengRecord record;
    ASSERT_TRUE(Open(record, "GCSY = -1"));
    EXPECT_NE(record.MoveFirstRow(), 0);
}

TEST_P(RecordAccessor, FindsNumbersWithAnApostrophe) {
    Execute(
        "insert into z_c_SanZhou(GCSY,ZKBH,QYBH,SYFF) values(1,'O''K','''','固结不排水剪'),(1,'OK','1','x')");
    CSanZhouRecord record;
    ASSERT_TRUE(Open(record, SampleCriterion(1, "O'K", "'")));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_STREQ(record.m_szSYFF, "固结不排水剪");
    EXPECT_NE(record.MoveNextRow(), 0);
}

TEST_P(RecordAccessor, MayBeClosedTwiceAndOpenedAgain) {
    Execute("insert into x_GongCheng values(1,'A','',0,0)");
    CGongChengRecord record;
    record.CloseRows();
    ASSERT_TRUE(Open(record, "GCSY = 1"));
    record.CloseRows();
    record.CloseRows();
    EXPECT_NE(record.MoveFirstRow(), 0);
    ASSERT_TRUE(Open(record, "GCSY = 1"));
    EXPECT_EQ(record.MoveFirstRow(), 0);
}

TEST_P(RecordAccessor, KeepsTextsOf255BytesAndCutsLongerOnesAtACharacter) {
    const std::string strFull(255, 'x');
    std::string strLong = "a";
    for (int i = 0; i < 130; ++i)
        strLong += "土";
    Execute("insert into x_GongCheng values(1,'" + strFull + "','" + strLong + "',0,0)");
    CGongChengRecord record;
    ASSERT_TRUE(Open(record, "GCSY = 1"));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    EXPECT_EQ(std::string(record.m_szGCBH), strFull);
    EXPECT_EQ(std::string(record.m_szGCMC), strLong.substr(0, 255));
}

TEST_P(RecordAccessor, DoesNotOpenWithoutProjectTableOrDatabase) {
    CGongChengRecord record;
    EXPECT_EQ(record.OpenRows("SELECT nonsense", 0, 1), 0);
    Execute("drop table x_GongCheng");
    EXPECT_EQ(Open(record, "GCSY = 1"), 0);
    SetProject("Database", "missing.db");
    EXPECT_EQ(Open(record, "GCSY = 1"), 0);
    SetProject("Connect", "Provider=Nonsense");
    EXPECT_EQ(Open(record, "GCSY = 1"), 0);
    EXPECT_TRUE(m_arBoxes.empty()); // the caller reports
}

TEST_P(RecordAccessorOnFile, DoesNotOpenATruncatedDatabase) {
    for (int i = 0; i < 200; ++i)
        Execute("insert into x_GongCheng values(1,'" + std::string(200, 'x') + "','',0,0)");
    m_pDatabase.reset();
    std::filesystem::resize_file(m_strDatabase, 7000);
    CGongChengRecord record;
    EXPECT_EQ(Open(record, "GCSY = 1"), 0);
    m_root.Write("project.db", "no database at all, just some text");
    EXPECT_EQ(Open(record, "GCSY = 1"), 0);
}

TEST_P(RecordAccessor, DoesNotOpenATableWithFewerColumns) {
    Execute("drop table z_c_SanZhou");
    Execute("create table z_c_SanZhou(GCSY integer, ZKBH text, QYBH text)");
    Execute("insert into z_c_SanZhou values(1,'a','b')");
    CSanZhouRecord record;
    EXPECT_EQ(Open(record, "GCSY = 1"), 0);
}

TEST_P(RecordAccessor, DoesNotStoreWhenOpenedForReadingOnly) {
    Execute("insert into x_GongCheng values(1,'A','',0,0)");
    CGongChengRecord record;
    ASSERT_TRUE(record.OpenRows(record.QueryFor("GCSY = 1"), 0, 0));
    ASSERT_EQ(record.MoveFirstRow(), 0);
    record.m_nGCBZ = 5;
    EXPECT_LT(record.StoreRow(), 0);
    EXPECT_EQ(Rows("select GCBZ from x_GongCheng"), CTexts{"0"});
}
