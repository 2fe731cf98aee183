#include "platform/ado/rowset_xml_types.h"

#include <gtest/gtest.h>

TEST(XmlType, ReadsEveryTypeBackThatItWrites) {
    for (const DBTYPE wType :
         {DBTYPE_I1, DBTYPE_I2, DBTYPE_I4, DBTYPE_UI1, DBTYPE_UI4, DBTYPE_R4, DBTYPE_R8, DBTYPE_DECIMAL,
          DBTYPE_BOOL, DBTYPE_DATE, DBTYPE_BYTES, DBTYPE_EMPTY, DBTYPE_BSTR}) {
        const CXmlType& type = XmlTypeOf(wType);
        EXPECT_EQ(TypeOfXml(type.m_strType, type.m_strDbType), wType) << wType;
    }
}

TEST(XmlType, TakesWhatItDoesNotKnowForText) {
    EXPECT_EQ(TypeOfXml("fancy", ""), DBTYPE_BSTR);
    EXPECT_EQ(TypeOfXml("", ""), DBTYPE_BSTR);
    EXPECT_EQ(TypeOfXml("dateTime", "timestamp"), DBTYPE_DATE);
    EXPECT_EQ(TypeOfXml("i4", ""), DBTYPE_I4);
}

TEST(EscapedForXml, WritesCharactersThatXmlCannotHoldByNumber) {
    EXPECT_EQ(EscapedForXml(std::string_view("a\x01\x1F\0b", 5)), "a_x0001__x001F__x0000_b");
    EXPECT_EQ(EscapedForXml("\t\r\n <&>'\""), "\t\r\n <&>'\"");
    EXPECT_EQ(EscapedForXml("\xE5\x9B\xBA"), "\xE5\x9B\xBA");
}

TEST(EscapedForXml, IsUndoneExactly) {
    for (const std::string_view strText :
         {std::string_view("_x0041_"), std::string_view("__x0041__"), std::string_view("_x004"),
          std::string_view("_x00G1_"), std::string_view("a\x02_x0002_\x03"), std::string_view("_x_x0001_"),
          std::string_view("_x005F_"), std::string_view("\0_", 2)})
        EXPECT_EQ(UnescapedFromXml(EscapedForXml(strText)), strText);
}
