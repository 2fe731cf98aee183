#include "host/datamanager/csv_reader.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using Fields = std::vector<std::string>;

std::vector<CCsvRecord> ReadAll(const std::string& strText) {
    std::istringstream stream(strText);
    CCsvReader reader(stream);
    std::vector<CCsvRecord> arRecords;
    for (CCsvRecord record; reader.Next(&record);)
        arRecords.push_back(record);
    return arRecords;
}

} // namespace

TEST(CsvReader, EndsLinesAtLfAndAtCrLfAndAtTheFilesEnd) {
    const auto arRecords = ReadAll("a,b\r\nc,d\ne,f");
    ASSERT_EQ(arRecords.size(), 3U);
    EXPECT_EQ(arRecords[0].m_arFields, (Fields{"a", "b"}));
    EXPECT_EQ(arRecords[1].m_arFields, (Fields{"c", "d"}));
    EXPECT_EQ(arRecords[2].m_arFields, (Fields{"e", "f"}));
    EXPECT_EQ(arRecords[2].m_nLine, 3U);
}

TEST(CsvReader, PassesOverTheMarkAndOverEmptyLines) {
    const auto arRecords = ReadAll("\xEF\xBB\xBF"
                                   "a\n\r\n\nb\n");
    ASSERT_EQ(arRecords.size(), 2U);
    EXPECT_EQ(arRecords[0].m_arFields, (Fields{"a"}));
    EXPECT_EQ(arRecords[1].m_arFields, (Fields{"b"}));
    EXPECT_EQ(arRecords[1].m_nLine, 4U);
}

TEST(CsvReader, KeepsBytesThatOnlyBeginLikeAMark) {
    const auto arRecords = ReadAll("\xEF\xBB"
                                   "a,b");
    ASSERT_EQ(arRecords.size(), 1U);
    EXPECT_EQ(arRecords[0].m_arFields, (Fields{"\xEF\xBB"
                                               "a",
                                               "b"}));
}

TEST(CsvReader, KeepsCommasQuotesAndLineEndsInsideQuotes) {
    const auto arRecords = ReadAll("\"a,b\",\"say \"\"x\"\"\",\"1\r\n2\"\nnext,,\n");
    ASSERT_EQ(arRecords.size(), 2U);
    EXPECT_EQ(arRecords[0].m_arFields, (Fields{"a,b", "say \"x\"", "1\r\n2"}));
    EXPECT_EQ(arRecords[1].m_arFields, (Fields{"next", "", ""}));
    EXPECT_EQ(arRecords[1].m_nLine, 3U);
}

TEST(CsvReader, KeepsBlanksAroundFields) {
    EXPECT_EQ(ReadAll(" a , b\n")[0].m_arFields, (Fields{" a ", " b"}));
}

TEST(CsvReader, ReportsABrokenRecordAndReadsTheNextOne) {
    const auto arRecords = ReadAll("a,b\"c,d\n\"x\"y,z\nfine,too\n");
    ASSERT_EQ(arRecords.size(), 3U);
    EXPECT_EQ(arRecords[0].m_strFault, "a quote stands inside a field that is not quoted");
    EXPECT_EQ(arRecords[0].m_arFields.size(), 2U);
    EXPECT_EQ(arRecords[1].m_strFault, "text follows the closing quote");
    EXPECT_EQ(arRecords[1].m_nLine, 2U);
    EXPECT_EQ(arRecords[2].m_strFault, "");
    EXPECT_EQ(arRecords[2].m_arFields, (Fields{"fine", "too"}));
}

TEST(CsvReader, ReportsAQuoteThatIsNeverClosedWhereItsRecordBegins) {
    const auto arRecords = ReadAll("a\n\"b\nc\n");
    ASSERT_EQ(arRecords.size(), 2U);
    EXPECT_EQ(arRecords[1].m_strFault, "the quote is never closed");
    EXPECT_EQ(arRecords[1].m_nLine, 2U);
}

TEST(CsvReader, ReportsACarriageReturnAlone) {
    const auto arRecords = ReadAll("a\rb,c\nd,e\n");
    ASSERT_EQ(arRecords.size(), 2U);
    EXPECT_EQ(arRecords[0].m_strFault, "a carriage return stands without a line feed");
    EXPECT_EQ(arRecords[1].m_arFields, (Fields{"d", "e"}));
}

TEST(CsvReader, FindsNothingInAnEmptyFile) {
    EXPECT_TRUE(ReadAll("").empty());
    EXPECT_TRUE(ReadAll("\xEF\xBB\xBF").empty());
}
