#include "data/ado_recordset.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoRecordsetRead : public CAdoTest {
protected:
    /// Opens one row of values.
    void OpenRow(const std::string& strColumns, const std::string& strValues) {
        m_pDatabase->Execute("create table v(" + strColumns + ")");
        m_pDatabase->Execute("insert into v values(" + strValues + ")");
        ASSERT_EQ(m_rows.Open("select * from v", RecordsetOption_Table), 1);
    }
};

INSTANTIATE_TEST_SUITE_P(Engines, AdoRecordsetRead, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoRecordsetRead, FindsAFieldByNameInAnyCaseAndByPosition) {
    m_rows.Open("select * from t order by id");
    EXPECT_EQ(Text(m_rows, "NAME"), "甲");
    EXPECT_EQ(Text(m_rows, CString("Name")), "甲");
    EXPECT_EQ(Text(m_rows, 1), "甲");
    EXPECT_EQ(Text(m_rows, 0), "1");
    EXPECT_EQ(Text(m_rows, 3), "?");
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0CC1U);
    EXPECT_EQ(Text(m_rows, "none"), "?");
}

TEST_P(AdoRecordsetRead, ReadsNumbers) {
    OpenRow("i integer, s smallint, r real, d double precision, n numeric(10,2)",
            "70000, -3, 0.5, 0.1, -12.5");
    double dValue = 0;
    EXPECT_EQ(m_rows.GetFieldDouble("i", &dValue), 1);
    EXPECT_EQ(dValue, 70000.0);
    EXPECT_EQ(m_rows.GetFieldDouble("s", &dValue), 1);
    EXPECT_EQ(dValue, -3.0);
    EXPECT_EQ(m_rows.GetFieldDouble("d", &dValue), 1);
    EXPECT_EQ(dValue, 0.1);
    EXPECT_EQ(m_rows.GetFieldDouble("n", &dValue), 1); // a decimal with its sign set
    EXPECT_EQ(dValue, -12.5);
    float fValue = 0;
    EXPECT_EQ(m_rows.GetFieldFloat("r", &fValue), 1);
    EXPECT_EQ(fValue, 0.5F);
    int nValue = 0;
    EXPECT_EQ(m_rows.GetFieldInt("n", &nValue), 1);
    EXPECT_EQ(nValue, -12);
    UINT uValue = 0;
    EXPECT_EQ(m_rows.GetFieldUInt("i", &uValue), 1);
    EXPECT_EQ(uValue, 70000U);
    EXPECT_EQ(m_rows.GetFieldBool("s", &nValue), 1);
    EXPECT_EQ(nValue, 1);
}

TEST_P(AdoRecordsetRead, WritesNumbersAsTextWithAllTheirDigits) {
    OpenRow("i integer, r real, d double precision, n numeric(10,2)", "70000, 0.1, 0.1, -12.5");
    EXPECT_EQ(Text(m_rows, "i"), "70000");
    EXPECT_EQ(Text(m_rows, "r"), "0.1000000015");
    EXPECT_EQ(Text(m_rows, "d"), "0.10000000000000000555");
    EXPECT_EQ(Text(m_rows, "n"), "-12.5");
}

TEST_P(AdoRecordsetRead, ReadsNullAsZeroOrNothingWithSuccess) {
    m_rows.Open("select * from t where id = 2");
    double dValue = 7;
    EXPECT_EQ(m_rows.GetFieldDouble("depth", &dValue), 1);
    EXPECT_EQ(dValue, 0.0);
    int nValue = 7;
    EXPECT_EQ(m_rows.GetFieldInt("depth", &nValue), 1);
    EXPECT_EQ(nValue, 0);
    EXPECT_EQ(Text(m_rows, "depth"), "");
    EXPECT_EQ(m_rows.IsFieldNull("depth"), 1);
    EXPECT_EQ(m_rows.IsFieldEmpty("depth"), 1);
    EXPECT_EQ(m_rows.IsFieldNull("id"), 0);
    EXPECT_EQ(m_rows.IsFieldEmpty("id"), 0);
    EXPECT_EQ(m_rows.IsFieldNull("none"), 0);
    EXPECT_EQ(m_rows.IsFieldEmpty("none"), 0);
}

TEST_P(AdoRecordsetRead, LeavesTheResultAsItWasOnAnError) {
    m_rows.Open("select * from t");
    double dValue = 7;
    EXPECT_EQ(m_rows.GetFieldDouble("none", &dValue), 0);
    EXPECT_EQ(dValue, 7.0);
    m_rows.MoveLast();
    m_rows.MoveNext();
    int nValue = 7;
    EXPECT_EQ(m_rows.GetFieldInt("id", &nValue), 0);
    EXPECT_EQ(nValue, 7);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0BCDU);
    CString strText = "七";
    EXPECT_EQ(m_rows.GetFieldText("id", &strText), 0);
    EXPECT_EQ(strText, "七");
}

TEST_P(AdoRecordsetRead, HasNoTextForDatesAndTruthValues) {
    OpenRow("d date, b boolean", "'2024-03-09', true");
    CString strText = "x";
    EXPECT_EQ(m_rows.GetFieldText("d", &strText), 0);
    EXPECT_EQ(strText, "");
    strText = "x";
    EXPECT_EQ(m_rows.GetFieldText("b", &strText), 0);
    EXPECT_EQ(strText, "");
    int bValue = 0;
    EXPECT_EQ(m_rows.GetFieldBool("b", &bValue), 1);
    EXPECT_EQ(bValue, 1);
}

TEST_P(AdoRecordsetRead, ReadsBytes) {
    OpenRow(std::string("b ") + In("blob", "bytea") + ", n " + In("blob", "bytea") + ", s varchar(9)",
            std::string(In("x'00ff27'", "'\\x00ff27'")) + ", NULL, 'text'");
    std::vector<unsigned char> arBytes = {9};
    EXPECT_EQ(m_rows.GetChunk("b", &arBytes), 1);
    EXPECT_EQ(arBytes, (std::vector<unsigned char>{0, 0xFF, 0x27}));
    EXPECT_EQ(m_rows.GetChunk("n", &arBytes), 1);
    EXPECT_TRUE(arBytes.empty());
    EXPECT_EQ(m_rows.GetChunk("s", &arBytes), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0D5DU);
}

TEST_P(AdoRecordsetRead, GivesWholeRowsAsText) {
    m_rows.Open("select * from t order by id");
    CString strText;
    EXPECT_EQ(m_rows.GetRowText(&strText), 1);
    EXPECT_EQ(strText, "1\t甲\t1.5\r");
    EXPECT_EQ(m_rows.GetRowText(&strText, -1, "|", ";", "-"), 1);
    EXPECT_EQ(strText, "2|乙|-;3|丙|3.5;");
    EXPECT_TRUE(m_rows.IsEof());
    EXPECT_EQ(m_rows.GetRowText(&strText), 0);
    EXPECT_EQ(strText, "2|乙|-;3|丙|3.5;");
}
