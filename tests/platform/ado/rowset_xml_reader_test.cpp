#include <gtest/gtest.h>

#include <numeric>

#include "platform/ado/memory_cursor.h"
#include "platform/ado/rowset_xml.h"
#include "tests/platform/ado/recordset_fixture.h"

namespace {

constexpr std::string_view g_strBeginning =
    "<xml xmlns:s='uuid:BDC6E3F0-6DA3-11d1-A2A3-00AA00C14882' "
    "xmlns:dt='uuid:C2F41010-65B3-11d1-A29F-00AA00C14882'"
    " xmlns:rs='urn:schemas-microsoft-com:rowset' xmlns:z='#RowsetSchema'>";
constexpr std::string_view g_strSchema =
    "<s:Schema id='RowsetSchema'><s:ElementType name='row'>"
    "<s:AttributeType name='a' rs:number='1'><s:datatype dt:type='string' "
    "dt:maxLength='7'/></s:AttributeType>"
    "<s:AttributeType name='b' rs:number='2' dt:type='int'/>"
    "</s:ElementType></s:Schema>";

std::string Whole(std::string_view strData) {
    return std::string(g_strBeginning).append(g_strSchema).append(strData).append("</xml>");
}

std::unique_ptr<CDbCursor> Again(const CDbCursor& rows) {
    std::vector<std::size_t> arRows(rows.RowCount());
    std::iota(arRows.begin(), arRows.end(), 0U);
    return ReadRowsetXml(RowsetXml(rows, arRows));
}

/// A value that went through XML in a column of a type.
CDbValue Through(const CDbValue& value, DBTYPE wType) {
    CMemoryCursor rows({{"v", wType}});
    rows.InsertRow({{0, value}});
    const auto pRows = Again(rows);
    const CDbCell cell = pRows->Cell(0, 0);
    if (const auto* pText = std::get_if<std::string_view>(&cell)) return std::string(*pText);
    if (const auto* pWhole = std::get_if<std::int64_t>(&cell)) return *pWhole;
    if (const auto* pReal = std::get_if<double>(&cell)) return *pReal;
    if (const auto* pBytes = std::get_if<std::span<const unsigned char>>(&cell))
        return std::vector<unsigned char>(pBytes->begin(), pBytes->end());
    return std::monostate();
}

} // namespace

TEST(ReadRowsetXml, ReadsEveryValueAsItWasWritten) {
    const std::string strAll = std::string(1, '\0') + "\x01\x1F\t\r\n '\"<&>]]> _x0041_ 粘土";
    EXPECT_EQ(Through(strAll, DBTYPE_BSTR), CDbValue(strAll));
    EXPECT_EQ(Through(std::string(), DBTYPE_BSTR), CDbValue(std::string()));
    EXPECT_EQ(Through(std::monostate(), DBTYPE_BSTR), CDbValue());
    EXPECT_EQ(Through(std::string("007"), DBTYPE_BSTR), CDbValue("007"));
    EXPECT_EQ(Through(std::string("007"), DBTYPE_EMPTY), CDbValue("007"));
    EXPECT_EQ(Through(std::int64_t{-5}, DBTYPE_I2), CDbValue(std::int64_t{-5}));
    EXPECT_EQ(Through(std::int64_t{5000000000}, DBTYPE_I4), CDbValue(std::int64_t{5000000000}));
    EXPECT_EQ(Through(0.1, DBTYPE_R8), CDbValue(0.1));
    EXPECT_EQ(Through(-1.25, DBTYPE_DECIMAL), CDbValue(-1.25));
    EXPECT_EQ(Through(std::int64_t{1}, DBTYPE_BOOL), CDbValue(std::int64_t{1}));
    EXPECT_EQ(Through(std::string("2024-03-09"), DBTYPE_DATE), CDbValue("2024-03-09"));
    EXPECT_EQ(Through(std::string("2024-03-09 12:30:00"), DBTYPE_DATE), CDbValue("2024-03-09 12:30:00"));
    EXPECT_EQ(Through(std::string("soon"), DBTYPE_DATE), CDbValue("soon"));
    EXPECT_EQ(Through(std::string("x"), DBTYPE_I4), CDbValue("x"));
    EXPECT_EQ(Through(std::string("00F"), DBTYPE_BYTES), CDbValue("00F"));
    EXPECT_EQ(Through(std::string("00FG"), DBTYPE_BYTES), CDbValue("00FG"));
    EXPECT_EQ(Through(std::vector<unsigned char>{0, 255}, DBTYPE_BYTES),
              CDbValue(std::vector<unsigned char>{0, 255}));
    EXPECT_EQ(Through(std::vector<unsigned char>{}, DBTYPE_BYTES), CDbValue(std::vector<unsigned char>{}));
}

TEST(ReadRowsetXml, ReadsColumnsAsTheyWereWritten) {
    const CMemoryCursor rows({{"孔 号", DBTYPE_BSTR, 20}, {"n", DBTYPE_R4}, {"n", DBTYPE_BYTES}});
    const auto pRows = Again(rows);
    ASSERT_EQ(pRows->Columns().size(), 3U);
    EXPECT_EQ(pRows->RowCount(), 0U);
    EXPECT_EQ(pRows->Columns()[0].m_strName, "孔 号");
    EXPECT_EQ(pRows->Columns()[0].m_nSize, 20U);
    EXPECT_EQ(pRows->Columns()[1].m_wType, DBTYPE_R4);
    EXPECT_EQ(pRows->Columns()[2].m_strName, "n");
    EXPECT_EQ(pRows->Columns()[2].m_wType, DBTYPE_BYTES);
}

TEST(ReadRowsetXml, TakesTypesBesideTheColumnAndRowsMarkedAsInserted) {
    const auto pRows =
        ReadRowsetXml(Whole("<rs:data><z:row a='x' b='5'/><rs:insert><z:row b='True'/></rs:insert>"
                            "</rs:data>"));
    ASSERT_EQ(pRows->RowCount(), 2U);
    EXPECT_EQ(pRows->Columns()[0].m_nSize, 7U);
    EXPECT_EQ(pRows->CellType(0, 1), DBTYPE_I4);
    EXPECT_EQ(pRows->CellType(1, 0), DBTYPE_NULL);
    EXPECT_EQ(CellText(pRows->Cell(1, 1)), "True");
}

TEST(ReadRowsetXml, RefusesWhatHoldsNoRows) {
    const std::uint32_t nUnreadable = 0x800A0BBB;
    for (const std::string& strXml :
         {std::string(), std::string("no xml"), std::string("<a/>"), std::string("<xml><z:row/></xml>"),
          Whole(""), Whole("<rs:data><z:row a='"), Whole("<rs:data><z:row a='&#1;'/></rs:data>"),
          Whole("<rs:data><rs:update><z:row a='x'/></rs:update></rs:data>"),
          Whole("<rs:data><rs:delete><z:row a='x'/></rs:delete></rs:data>"),
          std::string(g_strBeginning) + "<rs:data/></xml>",
          "<!DOCTYPE xml [<!ENTITY e 'x'>]>" + Whole("<rs:data/>")})
        EXPECT_EQ(CodeOf([&] { ReadRowsetXml(strXml); }), nUnreadable) << strXml;
}

TEST(ReadRowsetXml, NamesACharacterThatTheCodePageLacks) {
    try {
        ReadRowsetXml(Whole("<rs:data><z:row a='&#x1F600;'/></rs:data>"));
        ADD_FAILURE() << "read";
    } catch (const CComError& error) {
        EXPECT_EQ(error.Description(), L"character U+1F600 is not in the system code page");
    }
}
