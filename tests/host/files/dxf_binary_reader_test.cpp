#include "host/files/dxf_binary_reader.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;

namespace {

std::string File(std::string_view groups) {
    return std::string(g_szDxfBinarySentinel) + std::string(groups);
}

std::vector<CDxfTag> Tags(const std::string& strFile) {
    CDxfBinaryReader reader(strFile);
    std::vector<CDxfTag> tags;
    for (CDxfTag tag; reader.Next(&tag);)
        tags.push_back(tag);
    return tags;
}

std::string BinaryFailure(std::string_view groups) {
    try {
        Tags(File(groups));
    } catch (const CDxfFailure& failure) {
        return failure.what();
    }
    return "none";
}

} // namespace

TEST(DxfBinaryReader, ReadsEachKindBehindACodeOfTwoBytes) {
    const std::string strFile = File("\0\0LINE\0"
                                     "\x0A\0\0\0\0\0\0\0\xF8\x3F"
                                     "\x46\0\xFD\xFF"
                                     "\x5A\0\1\0\1\0"
                                     "\xA0\0\1\0\0\0\1\0\0\0"
                                     "\x22\1\1"
                                     "\x36\1\2\0\xFF"sv);
    const std::vector<CDxfTag> tags = Tags(strFile);
    ASSERT_EQ(tags.size(), 7U);
    EXPECT_EQ(tags[0].Text(), "LINE");
    EXPECT_EQ(std::get<double>(tags[1].m_value), 1.5);
    EXPECT_EQ(std::get<std::int64_t>(tags[2].m_value), -3);
    EXPECT_EQ(std::get<std::int64_t>(tags[3].m_value), 0x10001);
    EXPECT_EQ(std::get<std::int64_t>(tags[4].m_value), 0x100000001);
    EXPECT_EQ(tags[5].m_nCode, 290);
    EXPECT_EQ(std::get<std::int64_t>(tags[5].m_value), 1);
    EXPECT_EQ(tags[6].Text(), "\0\xFF"sv);
    EXPECT_EQ(tags[6].m_nPlace, 62U);
}

TEST(DxfBinaryReader, ReadsCodesOfOneByteAndTheLongOnesAmongThem) {
    const std::string strFile = File("\0SECTION\0\x02HEADER\0\xFF\xE9\x03GEO\0"sv);
    const std::vector<CDxfTag> tags = Tags(strFile);
    ASSERT_EQ(tags.size(), 3U);
    EXPECT_EQ(tags[0].Text(), "SECTION");
    EXPECT_EQ(tags[1].m_nCode, 2);
    EXPECT_EQ(tags[2].m_nCode, 1001);
    EXPECT_EQ(tags[2].Text(), "GEO");
}

TEST(DxfBinaryReader, NamesTheOffsetOfWhatIsWrong) {
    EXPECT_EQ(BinaryFailure("\0\0EOF"sv), "offset 24: the file ends within a text");
    EXPECT_EQ(BinaryFailure("\0\0EOF\0\x0A\0\0\0"sv), "offset 30: the file ends within a group");
    EXPECT_EQ(BinaryFailure("\0\0EOF\0\x55\0"sv), "offset 28: no group code: 85");
    EXPECT_EQ(BinaryFailure("\0\0EOF\0\x0A\0\0\0\0\0\0\0\xF0\x7F"sv),
              "offset 28: a number that is not finite");
    EXPECT_EQ(BinaryFailure("\0\0EOF\0\x36\1\x05"
                            "ab"sv),
              "offset 31: the file ends within a group");
}
