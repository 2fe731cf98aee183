#include "drawing/explode_sink.h"

#include "drawing/styles.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_text.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

namespace {
class ExplodeSink : public testing::Test {
protected:
    template <class F>
    CEntities Made(F make) {
        AcDbVoidPtrArray entitySet;
        CExplodeSink sink(entitySet, 5, m_idStyle);
        make(sink);
        return TakeOver(entitySet);
    }

    CTestDrawing m_drawing;
    AcDbObjectId m_idStyle;
};

std::vector<double> WidthsOfVertices(const AcDbPolyline& line) {
    std::vector<double> widths;
    for (const CPolylineVertex& vertex : line.Vertices()) {
        widths.push_back(vertex.m_dStartWidth);
        widths.push_back(vertex.m_dEndWidth);
    }
    return widths;
}
} // namespace

TEST_F(ExplodeSink, MakesLinesOfEachKind) {
    const CEntities entities = Made([](CPictureSink& sink) {
        sink.Line({1, 2, 0}, {3, 4, 0});
        sink.LineInChartColour({1, 2, 0}, {3, 4, 0});
        sink.WideLine({1, 2, 0}, {3, 4, 0}, 0.0);
        sink.Arrow({1, 2, 0}, {3, 4, 0}, 1.0);
    });
    const auto lines = Parts<AcDbPolyline>(entities);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(WidthsOfVertices(*lines[0]), (std::vector<double>{-1, -1, -1, -1}));
    EXPECT_EQ(WidthsOfVertices(*lines[1]), (std::vector<double>{-1, -1, -1, -1}));
    EXPECT_EQ(WidthsOfVertices(*lines[2]), (std::vector<double>{0, 0, 0, 0}));
    EXPECT_EQ(WidthsOfVertices(*lines[3]), (std::vector<double>{1, 0, -1, -1}));
    for (const AcDbPolyline* pLine : lines)
        EXPECT_EQ(pLine->colorIndex(), 256) << "none of its own";
}

TEST_F(ExplodeSink, DashesLinesAndHalfCircles) {
    m_drawing.Database().setLtscale(1.0);
    const CEntities entities = Made([](CPictureSink& sink) {
        sink.DashedLine({0, 0, 0}, {1, 0, 0}); // loads the line type and gets no id yet
        sink.DashedLine({0, 0, 0}, {1, 0, 0});
        sink.DashedHalfCircle({10, 20, 0}, 4.0);
        sink.HalfCircle({10, 20, 0}, 5.0);
    });
    ASSERT_EQ(entities.size(), 4U);
    EXPECT_EQ(entities[0]->LinetypeName(), "ByLayer");
    EXPECT_EQ(entities[0]->colorIndex(), 2);
    EXPECT_EQ(entities[1]->LinetypeName(), "Dashed2");
    EXPECT_EQ(entities[2]->LinetypeName(), "Dashed2");
    EXPECT_EQ(entities[2]->colorIndex(), 2);
    EXPECT_EQ(entities[3]->LinetypeName(), "ByLayer");
    EXPECT_EQ(entities[3]->colorIndex(), 256);
    EXPECT_EQ(Parts<AcDbArc>(entities)[1]->radius(), 5.0);
    EXPECT_EQ(m_drawing.Database().ltscale(), 10.0);
}

TEST_F(ExplodeSink, MakesTextsOfTheSharedStylesSize) {
    CreateTextStyleFromIni(g_pSheetTextStyle, m_idStyle, &m_drawing.Database());
    g_ChartTextStyle.setTextSize(3.0);
    const CEntities entities = Made([](CPictureSink& sink) {
        sink.Text({1, 2, 0}, "τ (kPa)", CTextDirection::Vertical);
    });
    const auto texts = Parts<AcDbText>(entities);
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0]->height(), 3.0);
    EXPECT_EQ(texts[0]->rotation(), 1.5707963);
    EXPECT_EQ(texts[0]->textStyle(), m_idStyle);
    EXPECT_STREQ(texts[0]->textString(), L"τ (kPa)");
}
