#include "host/files/dxf_reader.h"

#include "host/files/dxf_binary_reader.h"

#include <gtest/gtest.h>

using namespace std::string_view_literals;

TEST(OpenDxf, TellsTheFormByTheFirstBytes) {
    CDxfTag tag;
    ASSERT_TRUE(OpenDxf("0\nEOF\n")->Next(&tag));
    EXPECT_EQ(tag.Text(), "EOF");
    EXPECT_EQ(tag.m_nPlace, 1U);
    const std::string strBinary = std::string(g_szDxfBinarySentinel) + std::string("\0\0EOF\0"sv);
    ASSERT_TRUE(OpenDxf(strBinary)->Next(&tag));
    EXPECT_EQ(tag.Text(), "EOF");
    EXPECT_EQ(tag.m_nPlace, 22U);
}

TEST(DxfReader, LeavesCommentsOut) {
    const auto pReader = OpenDxf("999\nby hand\n0\nEOF\n999\nthe end\n");
    CDxfTag tag;
    ASSERT_TRUE(pReader->Next(&tag));
    EXPECT_EQ(tag.m_nCode, 0);
    EXPECT_FALSE(pReader->Next(&tag));
}
