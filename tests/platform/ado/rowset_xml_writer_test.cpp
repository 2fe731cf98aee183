#include <gtest/gtest.h>

#include <array>

#include "platform/ado/memory_cursor.h"
#include "platform/ado/rowset_xml.h"

namespace {

/// What stands between the beginning of the schema's columns and the end of the rows.
std::string Written(const CDbCursor& rows, std::span<const std::size_t> arRows) {
    const std::string strXml = RowsetXml(rows, arRows);
    const std::size_t nFrom = strXml.find("    <s:AttributeType");
    const std::size_t nTo = strXml.find("</rs:data>");
    return strXml.substr(nFrom, nTo - nFrom);
}

} // namespace

TEST(RowsetXml, DescribesColumnsAndWritesAnElementForEachRow) {
    CMemoryCursor rows({{"ZKBH", DBTYPE_BSTR, 20}, {"n", DBTYPE_I4}});
    rows.InsertRow({{0, std::string("a<'&>\n")}, {1, std::int64_t{5}}});
    rows.InsertRow({{0, std::string()}});
    const std::array<std::size_t, 2> arRows = {1, 0};
    EXPECT_EQ(Written(rows, arRows),
              "    <s:AttributeType name='ZKBH' rs:number='1' rs:nullable='true' rs:writeunknown='true'>\n"
              "      <s:datatype dt:type='string' rs:dbtype='str' dt:maxLength='20'/>\n"
              "    </s:AttributeType>\n"
              "    <s:AttributeType name='n' rs:number='2' rs:nullable='true' rs:writeunknown='true'>\n"
              "      <s:datatype dt:type='int'/>\n"
              "    </s:AttributeType>\n"
              "    <s:extends type='rs:rowbase'/>\n"
              "  </s:ElementType>\n"
              "</s:Schema>\n"
              "<rs:data>\n"
              "  <z:row ZKBH=''/>\n"
              "  <z:row ZKBH='a&lt;&#39;&amp;&gt;&#10;' n='5'/>\n");
}

TEST(RowsetXml, MakesNamesUpForColumnsWhoseOwnDoNotServe) {
    const CMemoryCursor rows(
        {{"1-2", DBTYPE_I4}, {"c0", DBTYPE_I4}, {"c0", DBTYPE_I4}, {"a b", DBTYPE_I4}, {"", DBTYPE_I4}});
    const std::string strXml = Written(rows, {});
    EXPECT_NE(strXml.find("name='c0_' rs:number='1' rs:name='1-2'"), std::string::npos) << strXml;
    EXPECT_NE(strXml.find("name='c0' rs:number='2' rs:nullable"), std::string::npos) << strXml;
    EXPECT_NE(strXml.find("name='c2' rs:number='3' rs:name='c0'"), std::string::npos) << strXml;
    EXPECT_NE(strXml.find("name='c3' rs:number='4' rs:name='a b'"), std::string::npos) << strXml;
}

TEST(RowsetXml, WritesDatesWithTheirTime) {
    CMemoryCursor rows({{"d", DBTYPE_DATE}});
    for (const char* pszDate : {"2024-3-9", "2024-03-09 12:30:00", "soon"})
        rows.InsertRow({{0, std::string(pszDate)}});
    const std::array<std::size_t, 3> arRows = {0, 1, 2};
    const std::string strXml = Written(rows, arRows);
    EXPECT_NE(
        strXml.find(
            "<z:row d='2024-03-09T00:00:00'/>\n  <z:row d='2024-03-09T12:30:00'/>\n  <z:row d='soon'/>"),
        std::string::npos)
        << strXml;
}
