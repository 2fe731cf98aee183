#include "host/files/dwg_drawing_writer.h"

#include "platform/acad/standard_handles.h"
#include "tests/host/files/dwg_sample_drawing.h"
#include "tests/host/files/dwg_structure.h"
#include "tests/host/files/dwg_written.h"

TEST(DwgFileOf, AnEmptyDrawingIsSoundAndHasWhatEveryFileHas) {
    const AcDbDatabase database;
    const CDwgFile file = DwgFileOf(database);
    EXPECT_EQ(DwgFaults(WriteDwgFile(file)), "");
    for (const std::uint64_t nHandle :
         {0x1,  0x2,  0x3,  0x5,  0x6,  0x7,  0x8,  0x9,  0xA,  0xB,  0xC,  0xD,
          0xE,  0xF,  0x10, 0x11, 0x12, 0x14, 0x15, 0x16, 0x17, 0x18, 0x19, 0x1A,
          0x1B, 0x1C, 0x1D, 0x1E, 0x1F, 0x20, 0x21, 0x22, 0x27, 0x52})
        EXPECT_TRUE(file.m_contents.contains(nHandle)) << nHandle;
    EXPECT_EQ(file.m_contents.size(), 34u);
    EXPECT_EQ(file.m_arClasses.size(), 3u);
}

TEST(DwgFileOf, ADrawingWithEntitiesIsSound) {
    AcDbDatabase database;
    for (int i = 0; i < 200; ++i)
        AppendTo(database.ModelSpaceId(), new AcDbLine({0.0, 0.0, 0.0}, {100.0, 50.0, 0.0}));
    EXPECT_EQ(DwgFaults(WriteDwgFile(DwgFileOf(database))), "");
}

TEST(DwgFileOf, KeepsTheVariablesOfTheDrawing) {
    AcDbDatabase database;
    database.setLtscale(2.5);
    database.setInsbase({1.0, 2.0, 3.0});
    const CDwgVariables vars = CDwgWritten(database).File().m_variables;
    EXPECT_EQ(vars.m_dLtscale, 2.5);
    EXPECT_EQ(vars.m_model.m_ptInsbase, AcGePoint3d(1.0, 2.0, 3.0));
    EXPECT_EQ(vars.m_hClayer, HardPointer(CStandardHandles::s_nLayer0));
    EXPECT_EQ(vars.m_hTextstyle, HardPointer(CStandardHandles::s_nStandardStyle));
    EXPECT_EQ(vars.m_hCeltype, HardPointer(CStandardHandles::s_nByLayer));
    EXPECT_EQ(vars.m_hHandseed, (CDwgHandle{0, 0x60}));
}
