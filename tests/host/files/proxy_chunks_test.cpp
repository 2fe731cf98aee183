#include "host/files/proxy_chunks.h"

#include <gtest/gtest.h>

#include <limits>

TEST(ProxyChunks, EndTextsWithZerosUpToFourBytes) {
    CProxyChunkWriter writer;
    writer.Text("abc");
    writer.Text("abcd");
    writer.Text(std::string_view("a\0b", 3)); // ends at its zero
    const CBytes bytes = writer.Take();
    EXPECT_EQ(bytes, (CBytes{'a', 'b', 'c', 0, 'a', 'b', 'c', 'd', 0, 0, 0, 0, 'a', 0, 0, 0}));
    CProxyChunkReader reader(bytes);
    EXPECT_EQ(reader.Text(), "abc");
    EXPECT_EQ(reader.Text(), "abcd");
    EXPECT_EQ(reader.Text(), "a");
    EXPECT_FALSE(reader.Failed());
    reader.Text();
    EXPECT_TRUE(reader.Failed());
}

TEST(ProxyChunks, ReadWideTextsWithHalves) {
    const CBytes bytes = {0xFA, 0x56, 0x3D, 0xD8, 0x00, 0xDE, 0, 0, 7, 0, 0, 0};
    CProxyChunkReader reader(bytes);
    EXPECT_EQ(reader.WideText(), std::wstring(L"固\U0001F600"));
    EXPECT_EQ(reader.Long(), 7u);
    EXPECT_FALSE(reader.Failed());
}

TEST(ProxyChunks, HoldPointsWithTheirCount) {
    CProxyChunkWriter writer;
    writer.Points({{1, 2, 3}, {4, 5, 6}});
    EXPECT_TRUE(writer.IsFinite());
    const CBytes bytes = writer.Take();
    EXPECT_EQ(bytes.size(), 52u);
    CProxyChunkReader reader(bytes);
    const std::vector<AcGePoint3d> arPoints = reader.Points();
    ASSERT_EQ(arPoints.size(), 2u);
    EXPECT_EQ(arPoints[1], AcGePoint3d(4, 5, 6));
    EXPECT_FALSE(reader.Failed());
}

TEST(ProxyChunks, RefuseMorePointsThanThereAre) {
    const CBytes bytes = {0xFF, 0xFF, 0xFF, 0x7F, 0, 0, 0, 0};
    CProxyChunkReader reader(bytes);
    EXPECT_TRUE(reader.Points().empty());
    EXPECT_TRUE(reader.Failed());
}

TEST(ProxyChunks, TellANumberThatIsNotFinite) {
    CProxyChunkWriter writer;
    writer.Real(1.0);
    EXPECT_TRUE(writer.IsFinite());
    writer.Real(std::numeric_limits<double>::infinity());
    EXPECT_FALSE(writer.IsFinite());
    const CBytes bytes = writer.Take();
    CProxyChunkReader reader(bytes);
    EXPECT_EQ(reader.Real(), 1.0);
    EXPECT_FALSE(reader.Failed());
    reader.Real();
    EXPECT_TRUE(reader.Failed());
}
