#include "data/ado_recordset.h"

#include "tests/data/ado_fixture.h"

namespace {

class AdoRecordsetEdit : public CAdoTest {
protected:
    AdoRecordsetEdit() { m_rows.Open("select * from t order by id", RecordsetOption_Table); }
};

INSTANTIATE_TEST_SUITE_P(Engines, AdoRecordsetEdit, TestEngines(), TestEngineName);

} // namespace

TEST_P(AdoRecordsetEdit, AddsARow) {
    EXPECT_EQ(m_rows.AddNew(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_New);
    EXPECT_EQ(m_rows.IsFieldEmpty("name"), 1);
    EXPECT_EQ(m_rows.IsFieldNull("name"), 0);
    EXPECT_EQ(m_rows.SetFieldInt("id", 4), 1);
    EXPECT_EQ(m_rows.SetFieldText(1, "丁's"), 1);
    EXPECT_EQ(m_rows.SetFieldDouble("depth", 4.5), 1);
    EXPECT_EQ(Table().size(), 3U);
    EXPECT_EQ(m_rows.Update(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_None);
    EXPECT_EQ(Table().back(), "4|丁's|4.5");
}

TEST_P(AdoRecordsetEdit, ChangesARow) {
    m_rows.MoveNext();
    EXPECT_EQ(m_rows.Edit(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_Edit);
    m_rows.SetFieldLong("depth", 7);
    m_rows.SetFieldNull("name");
    EXPECT_EQ(m_rows.Update(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_None);
    EXPECT_EQ(Table()[1], "2||7");
}

TEST_P(AdoRecordsetEdit, StoresWhatWasWrittenWhenItMoves) {
    m_rows.Edit();
    m_rows.SetFieldText("name", "改");
    EXPECT_EQ(m_rows.MoveNext(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_None);
    EXPECT_EQ(Table()[0], "1|改|1.5");
}

TEST_P(AdoRecordsetEdit, DropsWhatWasWrittenOnRequest) {
    m_rows.Edit();
    m_rows.SetFieldText("name", "改");
    EXPECT_EQ(m_rows.CancelUpdate(), 1);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_None);
    EXPECT_EQ(Text(m_rows, "name"), "甲");
    EXPECT_EQ(Table()[0], "1|甲|1.5");
}

TEST_P(AdoRecordsetEdit, GoesOnEditingAfterAFailure) {
    m_rows.AddNew();
    m_rows.SetFieldInt("id", 1);
    EXPECT_EQ(m_rows.Update(), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x80040E2FU);
    EXPECT_EQ(m_rows.GetEditStatus(), EditStatus_New);
    m_rows.SetFieldInt("id", 5);
    EXPECT_EQ(m_rows.Update(), 1);
    EXPECT_EQ(Table().back(), "5||");
}

TEST_P(AdoRecordsetEdit, DeletesTheCurrentRow) {
    EXPECT_EQ(m_rows.Delete(), 1);
    EXPECT_EQ(Table(), (CRows{"2|乙|", "3|丙|3.5"}));
    EXPECT_EQ(m_rows.Edit(), 0);
    EXPECT_EQ(m_rows.Delete(), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0BCDU);
}

TEST_P(AdoRecordsetEdit, RefusesAValueOfAnotherType) {
    EXPECT_EQ(m_rows.SetFieldText("depth", "深"), 0);
    EXPECT_EQ(m_rows.GetLastErrorCode(), 0x800A0D5DU);
    EXPECT_EQ(m_rows.SetFieldInt("none", 1), 0);
}

TEST_P(AdoRecordsetEdit, WritesDatesTruthValuesAndBytes) {
    m_pDatabase->Execute(std::string("create table v(k integer primary key, d timestamp, b boolean, c ") +
                         In("blob", "bytea") + ")");
    m_pDatabase->Execute("insert into v(k) values(1)");
    ASSERT_EQ(m_rows.Open("select * from v", RecordsetOption_Table), 1);
    EXPECT_EQ(m_rows.SetFieldDate("d", 45360.5), 1);
    EXPECT_EQ(m_rows.SetFieldBool("b", 5), 1);
    EXPECT_EQ(m_rows.AppendChunk("c", {1, 0}), 1);
    EXPECT_EQ(m_rows.AppendChunk("c", {0xFF}), 1);
    EXPECT_EQ(m_rows.AppendChunk("d", {1}), 0);
    ASSERT_EQ(m_rows.Update(), 1);
    ASSERT_EQ(m_rows.Open(), 1);
    CVariant date;
    ASSERT_EQ(m_rows.GetFieldValue("d", &date), 1);
    EXPECT_EQ(date, CVariant::Date(45360.5));
    int bValue = 0;
    m_rows.GetFieldBool("b", &bValue);
    EXPECT_EQ(bValue, 1);
    std::vector<unsigned char> arBytes;
    m_rows.GetChunk("c", &arBytes);
    EXPECT_EQ(arBytes, (std::vector<unsigned char>{1, 0, 0xFF}));
}
