#include "platform/ado/adodb_fields.h"

#include <gtest/gtest.h>

#include "tests/platform/ado/recordset_fixture.h"

using namespace ADODB;

namespace {

using CBytes = std::vector<unsigned char>;

class FieldObject : public CRecordsetTest {
protected:
    FieldObject() {
        m_pDatabase->Execute("create table f(S smallint, L integer, R real, D double, M numeric(8,2), F bit, "
                             "T datetime, C varchar(20), X text, P blob, V)");
        m_pDatabase->Execute("insert into f values(1,2,1.5,2.5,-1.25,1,'2024-03-09','固结','long',x'00FF10',"
                             "NULL)");
        m_pRows = Opened(L"select * from f");
    }
    [[nodiscard]] Field& Item(const wchar_t* pszName) const { return m_pRows->GetFields().GetItem(pszName); }

    RecordsetPtr m_pRows;
};

} // namespace

TEST_F(FieldObject, IsFoundByNameWithoutCaseAndByNumber) {
    Fields& fields = m_pRows->GetFields();
    EXPECT_EQ(fields.GetCount(), 11);
    EXPECT_EQ(fields.GetItem(L"c").GetName(), L"C");
    EXPECT_EQ(fields.GetItem(0L).GetName(), L"S");
    EXPECT_EQ(CodeOf([&] { (void)fields.GetItem(L"深度"); }), g_nItemNotFound);
    EXPECT_EQ(CodeOf([&] { (void)fields.GetItem(11); }), g_nItemNotFound);
    EXPECT_EQ(CodeOf([&] { (void)fields.GetItem(-1); }), g_nItemNotFound);
}

TEST_F(FieldObject, ShowsTypesAndSizes) {
    const std::vector<int> arTypes = {2, 3, 4, 5, 131, 11, 7, 202, 203, 205, 12};
    const std::vector<long> arDefined = {2, 4, 4, 8, 19, 2, 8, 20, 1073741823, 2147483647, 16};
    const std::vector<long> arActual = {2, 4, 4, 8, 19, 2, 8, 4, 8, 3, 0};
    for (long i = 0; i < 11; ++i) {
        Field& field = m_pRows->GetFields().GetItem(i);
        EXPECT_EQ(field.GetType(), arTypes[static_cast<std::size_t>(i)]) << i;
        EXPECT_EQ(field.GetDefinedSize(), arDefined[static_cast<std::size_t>(i)]) << i;
        EXPECT_EQ(field.GetActualSize(), arActual[static_cast<std::size_t>(i)]) << i;
    }
}

TEST_F(FieldObject, GivesValuesInTheirVariantTypes) {
    EXPECT_EQ(Item(L"S").GetValue(), CVariant(std::int16_t{1}));
    EXPECT_EQ(Item(L"L").GetValue(), CVariant(2));
    EXPECT_EQ(Item(L"R").GetValue(), CVariant(1.5F));
    EXPECT_EQ(Item(L"D").GetValue(), CVariant(2.5));
    EXPECT_EQ(Item(L"M").GetValue(), CVariant(DECIMAL{2, 128, 0, 125}));
    EXPECT_EQ(Item(L"F").GetValue(), CVariant(true));
    EXPECT_EQ(Item(L"T").GetValue(), CVariant::Date(45360));
    EXPECT_EQ(Item(L"C").GetValue(), CVariant(L"固结"));
    EXPECT_EQ(Item(L"P").GetValue(), CVariant(CBytes{0, 255, 16}));
    EXPECT_EQ(Item(L"V").GetValue(), CVariant::Null());
}

TEST_F(FieldObject, IsReadPieceByPiece) {
    EXPECT_EQ(Item(L"P").GetChunk(2), CVariant(CBytes{0, 255}));
    EXPECT_EQ(Item(L"P").GetChunk(0), CVariant(CBytes{}));
    EXPECT_EQ(Item(L"P").GetChunk(2), CVariant(CBytes{16}));
    EXPECT_EQ(Item(L"P").GetChunk(2), CVariant::Null());
    EXPECT_EQ(Item(L"X").GetChunk(3), CVariant(L"lon"));
    EXPECT_EQ(Item(L"X").GetChunk(99), CVariant(L"g"));
    EXPECT_EQ(Item(L"P").GetChunk(1), CVariant(CBytes{0})); // from the start again after another field
    EXPECT_EQ(Item(L"V").GetChunk(1), CVariant::Null());
    EXPECT_EQ(CodeOf([&] { (void)Item(L"L").GetChunk(1); }), g_nIllegalOperation);
    EXPECT_EQ(CodeOf([&] { (void)Item(L"P").GetChunk(-1); }), g_nInvalidArgument);
}

TEST_F(FieldObject, IsWrittenPieceByPiece) {
    Item(L"P").AppendChunk(CVariant(CBytes{1, 2}));
    Item(L"P").AppendChunk(CVariant(CBytes{3}));
    EXPECT_EQ(Item(L"P").GetValue(), CVariant(CBytes{1, 2, 3}));
    Item(L"X").AppendChunk(CVariant(L"固"));
    Item(L"X").AppendChunk(CVariant(L"结"));
    m_pRows->Update();
    EXPECT_EQ(Rows(*m_pDatabase, "select hex(P), X from f"), CRows{"010203|固结"});
    Item(L"P").AppendChunk(CVariant(CBytes{9})); // replaces: the row was stored in between
    m_pRows->Update();
    EXPECT_EQ(Rows(*m_pDatabase, "select hex(P) from f"), CRows{"09"});
}

TEST_F(FieldObject, TakesPiecesOfItsOwnKindOnly) {
    EXPECT_EQ(CodeOf([&] { Item(L"P").AppendChunk(CVariant(L"x")); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { Item(L"X").AppendChunk(CVariant(CBytes{1})); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { Item(L"X").AppendChunk(CVariant(5)); }), g_nInvalidArgument);
    EXPECT_EQ(CodeOf([&] { Item(L"L").AppendChunk(CVariant(CBytes{1})); }), g_nIllegalOperation);
    EXPECT_EQ(m_pRows->GetEditMode(), adEditNone);
}

TEST_F(FieldObject, RefusesAValueThatDoesNotSuitItsType) {
    EXPECT_EQ(CodeOf([&] { Item(L"L").PutValue(CVariant(L"x")); }), g_nWrongType);
    EXPECT_EQ(CodeOf([&] { Item(L"S").PutValue(CVariant(40000)); }), 0x80040E57U);
    EXPECT_EQ(CodeOf([&] { Item(L"C").PutValue(CVariant(L"\U0001F600")); }), 0x80040E21U);
    EXPECT_EQ(m_pRows->GetEditMode(), adEditNone);
}
