#include <gtest/gtest.h>

#include <filesystem>

#include "tests/platform/ado/recordset_fixture.h"
#include "tests/temp_folder.h"

using namespace ADODB;

namespace {

constexpr const wchar_t* g_pFiles = L"Provider=MSPersist;";

class RecordsetPersist : public CRecordsetTest {
protected:
    [[nodiscard]] std::wstring File(const char* pszName) const { return WideFromGbk(m_folder.Path(pszName)); }

    CTempFolder m_folder;
    RecordsetPtr m_pRows = Opened(L"select * from t order by id");
};

} // namespace

TEST_F(RecordsetPersist, OpensWhatItSaved) {
    m_pDatabase->Execute("create table w(名称 text, m numeric, p blob, d datetime, f bit, x real)");
    m_pDatabase->Execute("insert into w values('a' || char(1,9,10,13) || '''\"<&>粘土_x0041_',-1.25,x'00FF',"
                         "'2024-03-09 12:30:00',1,0.1)");
    m_pDatabase->Execute("insert into w values('',NULL,NULL,NULL,0,NULL)");
    const RecordsetPtr pWritten = Opened(L"w");
    pWritten->Save(File("rows.xml"));
    Recordset read;
    read.Open(File("rows.xml"), g_pFiles, adOpenStatic, adLockOptimistic, adCmdFile);
    EXPECT_EQ(read.GetCursorLocation(), adUseClient);
    ASSERT_EQ(read.GetRecordCount(), 2);
    for (; !read.IsEOF(); read.MoveNext(), pWritten->MoveNext())
        for (long i = 0; i < 6; ++i) {
            Field& field = read.GetFields().GetItem(i);
            EXPECT_EQ(field.GetName(), pWritten->GetFields().GetItem(i).GetName());
            EXPECT_EQ(field.GetType(), pWritten->GetFields().GetItem(i).GetType());
            EXPECT_EQ(field.GetValue(), pWritten->GetFields().GetItem(i).GetValue()) << i;
        }
    EXPECT_TRUE(pWritten->IsEOF());
}

TEST_F(RecordsetPersist, SavesTheRowsShownInTheirOrder) {
    m_pRows->PutFilter(L"id <> 2");
    m_pRows->PutSort(L"id desc");
    m_pRows->MoveLast();
    m_pRows->Save(File("rows.xml"));
    EXPECT_EQ(Text(*m_pRows, L"id"), L"3"); // at the first again
    Recordset read;
    read.Open(File("rows.xml"), g_pFiles, adOpenStatic);
    EXPECT_EQ(Column(read, L"id"), L"3,1");
}

TEST_F(RecordsetPersist, StoresAnEditFirst) {
    Put(*m_pRows, L"name", CVariant(L"丁"));
    m_pRows->Save(File("rows.xml"));
    EXPECT_EQ(Rows(*m_pDatabase, "select name from t where id = 1"), CRows{"丁"});
    Recordset read;
    read.Open(File("rows.xml"), g_pFiles);
    EXPECT_EQ(Text(read, L"name"), L"丁");
}

TEST_F(RecordsetPersist, ChangesTheRowsOfAFileInMemoryUntilTheyAreSaved) {
    m_pRows->Save(File("rows.xml"));
    Recordset read;
    read.Open(File("rows.xml"), g_pFiles, adOpenStatic, adLockOptimistic);
    Put(read, L"name", CVariant(L"丁"));
    read.Update();
    read.AddNew();
    Put(read, L"id", CVariant(9));
    read.Update();
    read.MoveFirst();
    read.MoveNext();
    read.Delete();
    read.Resync();
    read.Save();
    read.Close();
    read.Open(L"", g_pFiles);
    EXPECT_EQ(Column(read, L"id"), L"1,3,9");
    EXPECT_EQ(Column(read, L"name"), L"丁,丙,");
    read.Requery();
    EXPECT_EQ(Column(read, L"id"), L"1,3,9");
    EXPECT_EQ(Rows(*m_pDatabase, "select count(*) from t"), CRows{"3"});
}

TEST_F(RecordsetPersist, DoesNotOverwriteAnotherFile) {
    m_folder.Write("there.xml", "mine");
    EXPECT_EQ(CodeOf([&] { m_pRows->Save(File("there.xml")); }), 0x800A003AU);
    EXPECT_EQ(m_folder.Read("there.xml"), "mine");
    m_pRows->Save(File("rows.xml"));
    m_pRows->Save(File("rows.xml")); // its own
    m_pRows->Save();
    EXPECT_EQ(CodeOf([&] { Opened(L"t")->Save(); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { m_pRows->Save(File("rows.adtg"), adPersistADTG); }), g_nNotAvailable);
    EXPECT_EQ(CodeOf([&] { m_pRows->Save(File("missing/rows.xml")); }), 0x800A0BBCU);
}

TEST_F(RecordsetPersist, SaysWhatIsWrongWithAFile) {
    Recordset recordset;
    const std::uint32_t nUnreadable = 0x800A0BBB;
    EXPECT_EQ(CodeOf([&] { recordset.Open(File("missing.xml"), g_pFiles); }), nUnreadable);
    m_folder.Write("text.xml", "no xml");
    EXPECT_EQ(CodeOf([&] { recordset.Open(File("text.xml"), g_pFiles); }), nUnreadable);
    EXPECT_EQ(recordset.GetState(), adStateClosed);
}

TEST_F(RecordsetPersist, GivesRowsAsText) {
    EXPECT_EQ(m_pRows->GetString(), L"1\t甲\t1.5\r2\t乙\t\r3\t丙\t3.5\r");
    EXPECT_TRUE(m_pRows->IsEOF());
    EXPECT_EQ(CodeOf([&] { (void)m_pRows->GetString(); }), g_nNoCurrentRecord);
    m_pRows->MoveFirst();
    EXPECT_EQ(m_pRows->GetString(adClipString, 2, L"|", L"\n", L"NULL"), L"1|甲|1.5\n2|乙|NULL\n");
    EXPECT_EQ(Text(*m_pRows, L"id"), L"3");
    EXPECT_EQ(m_pRows->GetString(adClipString, 0), L"");
    EXPECT_EQ(CodeOf([&] { (void)m_pRows->GetString(adClipString, -2); }), g_nInvalidArgument);
}
