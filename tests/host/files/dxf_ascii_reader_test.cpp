#include "host/files/dxf_ascii_reader.h"

#include <gtest/gtest.h>

namespace {

CDxfTag First(std::string_view bytes) {
    CDxfAsciiReader reader(bytes);
    CDxfTag tag;
    EXPECT_TRUE(reader.Next(&tag));
    return tag;
}

/// What the reader says of the bytes.
std::string AsciiFailure(std::string_view bytes) {
    CDxfAsciiReader reader(bytes);
    CDxfTag tag;
    try {
        while (reader.Next(&tag)) {
        }
    } catch (const CDxfFailure& failure) {
        return failure.what();
    }
    return "none";
}

} // namespace

TEST(DxfAsciiReader, ReadsValuesByTheirCodes) {
    EXPECT_EQ(First("  1\n two words \n").Text(), " two words ");
    EXPECT_EQ(std::get<double>(First(" 10\n  -1.5e3\n").m_value), -1500.0);
    EXPECT_EQ(std::get<double>(First("40\n+2\n").m_value), 2.0);
    EXPECT_EQ(std::get<std::int64_t>(First("70\n    -3\n").m_value), -3);
    EXPECT_EQ(First("310\n00FF\n").Text(), "00FF");
}

TEST(DxfAsciiReader, TakesEitherLineEnd) {
    CDxfAsciiReader reader("0\r\nLINE\r\n10\n1.0\r\n");
    CDxfTag tag;
    ASSERT_TRUE(reader.Next(&tag));
    EXPECT_EQ(tag.Text(), "LINE");
    ASSERT_TRUE(reader.Next(&tag));
    EXPECT_EQ(tag.m_nPlace, 3U);
    EXPECT_FALSE(reader.Next(&tag));
}

TEST(DxfAsciiReader, PassesAByteOrderMarkAndAnEmptyLastLine) {
    CDxfAsciiReader reader("\xEF\xBB\xBF"
                           "0\nEOF\n\n");
    CDxfTag tag;
    ASSERT_TRUE(reader.Next(&tag));
    EXPECT_FALSE(reader.Next(&tag));
}

TEST(DxfAsciiReader, NamesTheLineOfWhatIsWrong) {
    EXPECT_EQ(AsciiFailure("0\nEOF\nfive\nx\n"), "line 3: no number, or one out of range");
    EXPECT_EQ(AsciiFailure("85\nx\n"), "line 1: no group code: 85");
    EXPECT_EQ(AsciiFailure("10\n1,5\n"), "line 2: no number, or one out of range");
    EXPECT_EQ(AsciiFailure("10\n\n"), "line 2: no number, or one out of range");
    EXPECT_EQ(AsciiFailure("10\nnan\n"), "line 2: a number that is not finite");
    EXPECT_EQ(AsciiFailure("10\n1e999\n"), "line 2: no number, or one out of range");
    EXPECT_EQ(AsciiFailure("70\n99999999999999999999\n"), "line 2: no number, or one out of range");
    EXPECT_EQ(AsciiFailure("0\nEOF\n0"), "line 3: the file ends within a group");
}
