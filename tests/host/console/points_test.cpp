#include "host/console/points.h"

#include <gtest/gtest.h>

namespace {

const AcGePoint3d LAST(10.0, 20.0, 30.0);

std::vector<double> Parsed(const char* text) {
    AcGePoint3d point;
    if (!ParsePoint(text, LAST, &point)) return {};
    return {point.x, point.y, point.z};
}

} // namespace

TEST(ParsePoint, TakesTwoOrThreeCoordinates) {
    EXPECT_EQ(Parsed("1,2"), (std::vector<double>{1.0, 2.0, 0.0}));
    EXPECT_EQ(Parsed("-1.5,2e3,3"), (std::vector<double>{-1.5, 2000.0, 3.0}));
}

TEST(ParsePoint, RelativeOnesCountFromTheLast) {
    EXPECT_EQ(Parsed("@1,-2"), (std::vector<double>{11.0, 18.0, 30.0}));
    EXPECT_EQ(Parsed("@0,0,5"), (std::vector<double>{10.0, 20.0, 35.0}));
}

TEST(ParsePoint, RefusesAnythingElse) {
    for (const char* text :
         {"", "1", "@1", "1,2,3,4", "1,", ",1", "1,,2", "1;2", "a,b", "1, 2", "nan,0", "@"})
        EXPECT_TRUE(Parsed(text).empty()) << text;
}
