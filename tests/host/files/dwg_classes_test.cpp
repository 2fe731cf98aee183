#include "host/files/dwg_classes.h"

#include "tests/host/files/dwg_refusal.h"

#include <gtest/gtest.h>

namespace {
const std::vector<CDwgClass> g_classes = {
    {500, 0, "App|Product Desc: x", "CDwgDictionary", "ADICTIONARY", false, false},
    {501, 0x8401, "图件", "CChart", "CHART", true, true},
};
}

TEST(DwgClasses, KeepNamesFlagsAndKind) {
    EXPECT_EQ(ReadDwgClasses(WriteDwgClasses(g_classes)), g_classes);
    EXPECT_EQ(ReadDwgClasses(WriteDwgClasses({})), std::vector<CDwgClass>());
}

TEST(DwgClasses, StandInTheCodesOfTheFormat) {
    // 500: 00 F4 01; flags: 10; three texts of one byte: 01 01 'a'; bit 1; 0x1F2: 00 F2 01.
    EXPECT_EQ(WriteDwgClasses({{500, 0, "a", "b", "c", true, true}}),
              (CBytes{0x3D, 0x00, 0x64, 0x05, 0x85, 0x01, 0x62, 0x40, 0x58, 0xE7, 0x90, 0x08}));
}

TEST(DwgClasses, RefuseDataThatEndWithinAnEntry) {
    CBytes data = WriteDwgClasses(g_classes);
    data.pop_back();
    data.pop_back();
    EXPECT_EQ(RefusalOf([&] { ReadDwgClasses(data); }), "Classes: the data end within an entry.");
}

TEST(DwgClasses, RefuseANumberThatIsTakenOrNoClasss) {
    std::vector<CDwgClass> classes = g_classes;
    classes[1].m_nNumber = 500;
    EXPECT_EQ(RefusalOf([&] { ReadDwgClasses(WriteDwgClasses(classes)); }),
              "Classes: number 500 is taken or no class's.");
    classes[1].m_nNumber = 499;
    EXPECT_EQ(RefusalOf([&] { ReadDwgClasses(WriteDwgClasses(classes)); }),
              "Classes: number 499 is taken or no class's.");
}

TEST(DwgClasses, RefuseANameThatIsTooLongForAFile) {
    EXPECT_EQ(RefusalOf([] {
                  WriteDwgClasses({{500, 0, std::string(0x10000, 'a'), "", "", false, false}});
              }),
              "Classes: a name is too long.");
}
