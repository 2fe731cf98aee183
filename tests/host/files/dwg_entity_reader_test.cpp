#include "host/files/dwg_entity_reader.h"

#include "host/files/dwg_curves.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_texts.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/db_text.h"
#include "tests/host/files/dwg_refusal.h"

#include <gtest/gtest.h>

namespace {

/// Reads single entities into a new drawing.
class CEntityReading {
public:
    template <class Part, class File>
    CDwgReadEntity Read(std::uint16_t nType, const Part& part, File file,
                        const CDwgEntityCommon& common = {}) {
        return ReadDwgEntity(DwgRecordOf(nType, 0x60, part,
                                         [&](auto& io, auto& value) {
                                             FileEntityCommon(io, common);
                                             file(io, value);
                                         }),
                             m_reading);
    }
    AcDbDatabase& Database() { return m_database; }
    CDwgReading& Reading() { return m_reading; }

private:
    AcDbDatabase m_database;
    CDwgReading m_reading{m_database, std::make_shared<const CDwgOrigin>(CDwgFile()), {}};
};

template <class Class>
const Class& As(const CDwgReadEntity& read) {
    return dynamic_cast<const Class&>(*read.m_pEntity);
}

} // namespace

TEST(ReadDwgEntity, GivesColorLayerAndLinetype) {
    CEntityReading reading;
    reading.Reading().m_ids[0x10] = reading.Database().clayer();
    CDwgEntityCommon common;
    common.m_nColor = 3;
    common.m_hLayer = HardPointer(0x10);
    common.m_nLinetype = g_nDwgByBlock;
    auto read = reading.Read(g_nDwgLine, CDwgLine(), DWG_FILED(FileLine), common);
    EXPECT_EQ(read.m_pEntity->colorIndex(), 3);
    EXPECT_EQ(read.m_pEntity->LayerName(), "0");
    EXPECT_EQ(read.m_pEntity->LinetypeName(), "ByBlock");
    common.m_nLinetype = g_nDwgContinuous;
    read = reading.Read(g_nDwgLine, CDwgLine(), DWG_FILED(FileLine), common);
    EXPECT_EQ(read.m_pEntity->LinetypeName(), "Continuous");
}

TEST(ReadDwgEntity, PutsAnEntityOfAnUnknownLayerOnLayer0) {
    CEntityReading reading;
    CDwgEntityCommon common;
    common.m_hLayer = HardPointer(0x99);
    const auto read = reading.Read(g_nDwgLine, CDwgLine(), DWG_FILED(FileLine), common);
    EXPECT_EQ(read.m_pEntity->layerId(), reading.Database().clayer());
}

TEST(ReadDwgEntity, GivesEveryVertexTheConstantWidth) {
    CEntityReading reading;
    CDwgPolyline part;
    part.m_arPoints = {{0.0, 0.0}, {1.0, 0.0}};
    auto read = reading.Read(g_nDwgPolyline, part, DWG_FILED(FilePolyline));
    EXPECT_EQ(As<AcDbPolyline>(read).Vertices()[1].m_dStartWidth, -1.0);
    part.m_nFlags = CDwgPolyline::s_nConstantWidth;
    part.m_dConstantWidth = 0.5;
    read = reading.Read(g_nDwgPolyline, part, DWG_FILED(FilePolyline));
    EXPECT_EQ(As<AcDbPolyline>(read).Vertices()[1].m_dStartWidth, 0.5);
    EXPECT_EQ(As<AcDbPolyline>(read).Vertices()[1].m_dEndWidth, 0.5);
}

TEST(ReadDwgEntity, MakesARationalSplineOfControlPointsWithWeights) {
    CEntityReading reading;
    CDwgSpline part;
    part.m_nDegree = 2;
    part.m_bRational = part.m_bWeights = part.m_bClosed = true;
    part.m_arKnots = {0.0, 0.0, 0.0, 1.0, 1.0, 1.0};
    part.m_arControlPoints = {{{0.0, 0.0, 0.0}, 1.0}, {{1.0, 1.0, 0.0}, 0.5}, {{2.0, 0.0, 0.0}, 1.0}};
    const auto read = reading.Read(g_nDwgSpline, part, DWG_FILED(FileSpline));
    const auto& spline = As<AcDbSpline>(read);
    EXPECT_EQ(spline.degree(), 2);
    EXPECT_TRUE(spline.isRational());
    EXPECT_TRUE(spline.isClosed());
    EXPECT_FALSE(spline.hasFitData());
    EXPECT_EQ(spline.Nurbs().m_arWeights, (std::vector{1.0, 0.5, 1.0}));
}

TEST(ReadDwgEntity, LeavesANumberThatTheEntityRefusesAsInANewOne) {
    CEntityReading reading;
    CDwgTextEntity part;
    part.m_dHeight = -1.0;
    part.m_dWidthFactor = 0.0;
    part.m_nHorizontal = 9;
    const auto read = reading.Read(g_nDwgText, part, DWG_FILED(FileText));
    EXPECT_EQ(As<AcDbText>(read).height(), 0.0);
    EXPECT_EQ(As<AcDbText>(read).widthFactor(), 1.0);
    EXPECT_EQ(As<AcDbText>(read).horizontalMode(), AcDb::kTextLeft);
}

TEST(ReadDwgEntity, ReadsEscapesInTexts) {
    CEntityReading reading;
    CDwgTextEntity part;
    part.m_strText = "\\U+0159%%d";
    EXPECT_STREQ(As<AcDbText>(reading.Read(g_nDwgText, part, DWG_FILED(FileText))).textString(),
                 L"\u0159%%d");
}

TEST(ReadDwgEntity, MakesAProxyOfAnotherTypeAndRefusesOtherData) {
    CEntityReading reading;
    CDwgEntityCommon common;
    common.m_nColor = 3;
    const auto circle = reading.Read(0x12, CDwgLine(), DWG_FILED(FileLine), common);
    EXPECT_STREQ(As<AcDbProxyEntity>(circle).originalClassName(), L"AcDbCircle");
    EXPECT_STREQ(As<AcDbProxyEntity>(circle).originalDxfName(), L"CIRCLE");
    EXPECT_EQ(circle.m_pEntity->colorIndex(), 3);
    EXPECT_EQ(RefusalOf([&] { reading.Read(g_nDwgArc, CDwgLine(), DWG_FILED(FileLine)); }),
              "Object 60: its data are not those of its class.");
}
