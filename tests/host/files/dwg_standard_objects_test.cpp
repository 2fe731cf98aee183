#include "host/files/dwg_standard_objects.h"

#include "host/files/dwg_dictionaries.h"
#include "platform/acad/standard_handles.h"
#include "tests/host/files/dwg_written.h"

#include <map>

namespace {
CDwgRecord StandardObject(std::uint64_t nHandle) {
    std::map<std::uint64_t, CDwgRecord> all;
    for (CDwgRecord& record : DwgStandardObjects())
        all.emplace(record.m_nHandle, std::move(record));
    return all.at(nHandle);
}
} // namespace

TEST(DwgStandardObjects, NameTheLayoutsOfBothSpaces) {
    const auto layouts =
        Filed<CDwgDictionary>(StandardObject(CStandardHandles::s_nLayouts), DWG_FILED(FileDictionary));
    EXPECT_EQ(layouts.m_arNames, (std::vector<std::string>{"Layout1", "Model"}));
    EXPECT_EQ(layouts.m_arItems, (std::vector{SoftOwner(0x1E), SoftOwner(0x22)}));
    const auto model = Filed<CDwgLayout>(StandardObject(0x22), DWG_FILED(FileLayout));
    EXPECT_EQ(model.m_strName, "Model");
    EXPECT_EQ(model.m_hBlock, SoftPointer(CStandardHandles::s_nModelSpace));
    EXPECT_EQ(model.m_hOwner, SoftPointer(CStandardHandles::s_nLayouts));
}

TEST(DwgStandardObjects, AreOfTheirClassesWhereTheyHaveNoFixedType) {
    const std::vector<CDwgClass> classes = DwgStandardClasses();
    const auto nameOf = [&](std::uint64_t nHandle) {
        return classes.at(StandardObject(nHandle).m_nType - g_nDwgFirstClass).m_strDxfName;
    };
    EXPECT_EQ(nameOf(CStandardHandles::s_nPlotStyles), "ACDBDICTIONARYWDFLT");
    EXPECT_EQ(nameOf(CStandardHandles::s_nPlotStyle), "ACDBPLACEHOLDER");
    EXPECT_EQ(nameOf(0x1E), "LAYOUT");
}
