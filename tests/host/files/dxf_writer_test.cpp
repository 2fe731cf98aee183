#include "host/files/dxf_writer.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

std::string Written(double value) {
    CDxfWriter writer;
    writer.Real(40, value);
    return writer.Bytes().substr(4, writer.Bytes().size() - 5);
}

} // namespace

TEST(DxfWriter, WritesAGroupAsTwoLines) {
    CDxfWriter writer;
    writer.Word(0, "LINE");
    writer.Text(8, L"固结");
    writer.Whole(1071, -70000);
    writer.Handle(5, AcDbHandle(0x2AF));
    writer.Handle(330, AcDbHandle());
    EXPECT_EQ(writer.Bytes(), "  0\nLINE\n  8\n固结\n1071\n-70000\n  5\n2AF\n330\n0\n");
}

TEST(DxfWriter, WritesAPointAsThreeGroups) {
    CDxfWriter writer;
    writer.Point(10, AcGePoint3d(1.0, -2.5, 0.0));
    EXPECT_EQ(writer.Bytes(), " 10\n1.0\n 20\n-2.5\n 30\n0.0\n");
}

TEST(DxfWriter, WritesTheShortestRealWithAPoint) {
    EXPECT_EQ(Written(0.1), "0.1");
    EXPECT_EQ(Written(100.0), "100.0");
    EXPECT_EQ(Written(1e20), "1.0e+20");
    EXPECT_EQ(Written(-1.5e-300), "-1.5e-300");
    EXPECT_EQ(Written(1.0 / 3.0), "0.3333333333333333");
}

TEST(DxfWriter, TakesBackWhatIsNotWantedOrNotFinite) {
    CDxfWriter writer;
    writer.Word(0, "LINE");
    EXPECT_TRUE(writer.KeepIf(true, 0));
    const std::size_t nSize = writer.Bytes().size();
    writer.Real(40, 1.0);
    EXPECT_FALSE(writer.KeepIf(false, nSize));
    writer.Real(40, std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(writer.KeepIf(true, nSize));
    EXPECT_EQ(writer.TakeBytes(), "  0\nLINE\n");
    EXPECT_EQ(writer.Bytes(), "");
}
