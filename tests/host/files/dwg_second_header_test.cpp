#include "host/files/dwg_second_header.h"

#include "tests/host/files/dwg_structure.h"
#include "tests/host/files/hex_bytes.h"

#include <gtest/gtest.h>

TEST(DwgSecondHeader, RepeatsTheFileHeaderAndNamesTheTables) {
    CDwgFileHeader header;
    header.m_arSections[0] = {0x101, 0x258};
    CDwgVariables vars;
    vars.m_hHandseed.m_nValue = 0x1234;
    vars.m_roots.m_hBlocks.m_nValue = 1;
    const CBytes bytes = WriteDwgSecondHeader(header, vars, 0x200);
    const CSecondHeader second = FindSecondHeader(bytes);
    EXPECT_EQ(second.m_strFault, "");
    EXPECT_EQ(second.m_nAddress, 0x200u);
    EXPECT_EQ(second.m_arSections[0], (CDwgLocator{0x101, 0x258}));
    EXPECT_EQ(second.m_arHandles[0], 0x1234u);
    EXPECT_EQ(second.m_arHandles[1], 1u);
    EXPECT_EQ(second.m_arHandles[2], 0u);
}
