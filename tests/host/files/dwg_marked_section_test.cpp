#include "host/files/dwg_marked_section.h"

#include "tests/host/files/dwg_refusal.h"

#include <gtest/gtest.h>

namespace {
const CBytes g_data = {1, 2, 3};

std::string RefusalOfSection(CByteView section) {
    return RefusalOf([&] { ReadMarkedSection(section, g_dwgClassMarks); });
}
} // namespace

TEST(MarkedSection, GivesItsDataBack) {
    const CBytes section = WriteMarkedSection(g_data, g_dwgHeaderMarks);
    EXPECT_EQ(section.size(), g_data.size() + 38);
    const CByteView data = ReadMarkedSection(section, g_dwgHeaderMarks);
    EXPECT_EQ(CBytes(data.begin(), data.end()), g_data);
}

TEST(MarkedSection, RefusesEveryChangedByteButIsContentWithNone) {
    const CBytes section = WriteMarkedSection(g_data, g_dwgClassMarks);
    EXPECT_EQ(RefusalOfSection(section), "");
    for (std::size_t i = 0; i < section.size(); ++i) {
        CBytes damaged = section;
        damaged[i] ^= 0x10;
        EXPECT_NE(RefusalOfSection(damaged), "") << i;
    }
}

TEST(MarkedSection, SaysWhatIsWrong) {
    CBytes section = WriteMarkedSection(g_data, g_dwgClassMarks);
    EXPECT_EQ(RefusalOfSection({}), "Classes: the section is missing or too short.");
    EXPECT_EQ(RefusalOfSection(CByteView(section).first(40)), "Classes: the data reach beyond the section.");
    section[20] ^= 1;
    EXPECT_EQ(RefusalOfSection(section), "Classes: the check sum is wrong.");
    section[20] ^= 1;
    section.back() ^= 1;
    EXPECT_EQ(RefusalOfSection(section), "Classes: the end mark is missing.");
    section.front() ^= 1;
    EXPECT_EQ(RefusalOfSection(section), "Classes: the start mark is missing.");
}
