#include "host/plot/svg_canvas.h"

#include "host/plot/painter.h"
#include "tests/host/plot/plot_fixture.h"

#include <QtCore/QBuffer>
#include <QtCore/QXmlStreamReader>

struct CSvgElement {
    QString m_strName, m_strText;
    QXmlStreamAttributes m_attributes;
    QString Attribute(const QString& strName) const { return m_attributes.value(strName).toString(); }
};

class SvgCanvasTest : public PlotTest {
protected:
    CFonts m_fonts{{}};

    /// All elements in order, the root first.
    std::vector<CSvgElement> Paint(const CDisplayList& list) {
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        CSvgCanvas canvas(buffer, QSizeF(210.0, 297.0));
        CPaintContext context;
        context.m_dTop = 297.0;
        context.m_fnLinetype = [](const std::string&) { return std::vector<double>{0.25, -0.125}; };
        context.m_dLinetypeScale = 10.0;
        PaintDisplayList(list, context, m_fonts, canvas);
        EXPECT_TRUE(canvas.Finish());
        return Parse(buffer.data());
    }
    static std::vector<CSvgElement> Parse(const QByteArray& bytes) {
        std::vector<CSvgElement> arElements;
        QXmlStreamReader reader(bytes);
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement())
                arElements.push_back({reader.name().toString(), {}, reader.attributes()});
            else if (reader.isCharacters() && !arElements.empty() && arElements.back().m_strName == u"text" &&
                     arElements.back().m_strText.isEmpty())
                arElements.back().m_strText = reader.text().toString();
        }
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
        return arElements;
    }
};

TEST_F(SvgCanvasTest, IsAPageInMillimetres) {
    const auto arElements = Paint({});
    ASSERT_EQ(arElements.size(), 1u);
    EXPECT_EQ(arElements[0].Attribute(u"width"_qs), u"210mm");
    EXPECT_EQ(arElements[0].Attribute(u"height"_qs), u"297mm");
    EXPECT_EQ(arElements[0].Attribute(u"viewBox"_qs), u"0 0 210 297");
}

TEST_F(SvgCanvasTest, KeepsATextWholeAndHoldsItToItsTrackedWidth) {
    const auto arElements = Paint({Primitive(Text("主应力差σ-σ <kPa>", 20, 50, 2.5, true), 1)});
    ASSERT_EQ(arElements.size(), 2u);
    const CSvgElement& text = arElements[1];
    EXPECT_EQ(text.m_strName, u"text");
    EXPECT_EQ(text.m_strText, u"主应力差σ-σ <kPa>");
    EXPECT_EQ(text.Attribute(u"fill"_qs), u"#ff0000");
    EXPECT_TRUE(text.Attribute(u"transform"_qs).startsWith(u"matrix(0 -1 1 0 20.")); // lowered: to the right
    EXPECT_TRUE(text.Attribute(u"transform"_qs).endsWith(u" 247)"));
    const double dMeasured = m_fonts.AdvanceWidth({CHART_FONT, ""}, "主应力差σ-σ <kPa>");
    EXPECT_NEAR(text.Attribute(u"textLength"_qs).toDouble(), dMeasured * 2.5 * 0.8, 1e-5);
    EXPECT_NEAR(text.Attribute(u"font-size"_qs).toDouble(),
                m_fonts.Chain({CHART_FONT, ""}).EmPerCapital() * 2.5, 1e-5);
    EXPECT_EQ(text.Attribute(u"font-family"_qs), u"'AR PL SungtiL GB', 'BabelStone Han'");
}

TEST_F(SvgCanvasTest, StrokesWithWidthColourAndDashes) {
    const auto arElements =
        Paint({Primitive(Line(10, 20, 30, 20), 2, "Dashed2"), Primitive(Line(10, 20, 30, 20))});
    ASSERT_EQ(arElements.size(), 3u);
    EXPECT_EQ(arElements[1].Attribute(u"d"_qs), u"M10 277 L30 277");
    EXPECT_EQ(arElements[1].Attribute(u"stroke"_qs), u"#ffff00");
    EXPECT_EQ(arElements[1].Attribute(u"stroke-width"_qs), u"0.18");
    EXPECT_EQ(arElements[1].Attribute(u"stroke-dasharray"_qs), u"2.5 1.25");
    EXPECT_EQ(arElements[2].Attribute(u"stroke"_qs), u"#000000");
    EXPECT_FALSE(arElements[2].m_attributes.hasAttribute(u"stroke-dasharray"_qs));
}

TEST_F(SvgCanvasTest, WritesArcsAsCurvesAndWidePiecesAsFills) {
    const auto arElements =
        Paint({Primitive(HalfCircle(50, 50, 10)),
               Primitive(CPlinePrimitive{{Vertex(0, 0, 0, 1.0, 0.0), Vertex(3, 0)}, false}, 1)});
    ASSERT_EQ(arElements.size(), 3u);
    EXPECT_TRUE(arElements[1].Attribute(u"d"_qs).startsWith(u"M60 247 C"));
    EXPECT_EQ(arElements[1].Attribute(u"fill"_qs), u"none");
    EXPECT_EQ(arElements[2].Attribute(u"fill"_qs), u"#ff0000");
    EXPECT_FALSE(arElements[2].m_attributes.hasAttribute(u"stroke"_qs));
}
