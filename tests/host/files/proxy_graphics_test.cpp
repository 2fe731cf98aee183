#include "host/files/proxy_graphics.h"

#include "host/files/proxy_chunks.h"
#include "platform/acad/db_line.h"
#include "platform/windows/code_page.h"
#include "tests/host/files/hex_bytes.h"
#include "tests/support/drawing.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <numbers>

namespace {

constexpr double g_dNone = std::numeric_limits<double>::quiet_NaN();
constexpr double g_dQuarter = std::numbers::pi / 2;

CDisplayList ReadBytes(CByteView bytes) {
    const AcDbLine line;
    const CDrawingText text(g_nChinesePage);
    return ReadProxyGraphics(bytes, line, [&](std::string_view narrow) { return text.Decode(narrow); });
}

CBytes Written(const CDisplayList& picture) {
    return WriteProxyGraphics(picture, CDrawingText(g_nChinesePage));
}

CDisplayList ThereAndBack(const CDisplayList& picture) {
    return ReadBytes(Written(picture));
}

template <class Shape>
CPrimitive Of(Shape shape, Adesk::UInt16 nColor = 256) {
    CPrimitive primitive;
    primitive.m_nColor = nColor;
    primitive.m_shape = std::move(shape);
    return primitive;
}

template <class Shape>
const Shape& As(const CPrimitive& primitive) {
    return std::get<Shape>(primitive.m_shape);
}

void ExpectSameBox(const AcDbExtents& box, const AcDbExtents& expected, double dTolerance) {
    EXPECT_EQ(box.isEmpty(), expected.isEmpty());
    EXPECT_NEAR(box.minPoint().x, expected.minPoint().x, dTolerance);
    EXPECT_NEAR(box.minPoint().y, expected.minPoint().y, dTolerance);
    EXPECT_NEAR(box.minPoint().z, expected.minPoint().z, dTolerance);
    EXPECT_NEAR(box.maxPoint().x, expected.maxPoint().x, dTolerance);
    EXPECT_NEAR(box.maxPoint().y, expected.maxPoint().y, dTolerance);
    EXPECT_NEAR(box.maxPoint().z, expected.maxPoint().z, dTolerance);
}

/// A metafile as another program may write it.
class CForeign {
public:
    CForeign& Chunk(std::uint32_t nType, const std::function<void(CProxyChunkWriter&)>& fill) {
        CProxyChunkWriter data;
        fill(data);
        return Raw(nType, data.Take());
    }
    CForeign& Raw(std::uint32_t nType, const CBytes& data) {
        CBitWriter head;
        head.RL(static_cast<std::uint32_t>(data.size() + 8));
        head.RL(nType);
        const CBytes bytes = head.Take();
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
        m_bytes.insert(m_bytes.end(), data.begin(), data.end());
        ++m_nChunks;
        return *this;
    }
    CForeign& Long(std::uint32_t nType, std::uint32_t nValue) {
        return Chunk(nType, [=](CProxyChunkWriter& data) { data.Long(nValue); });
    }
    CForeign& Line(std::vector<AcGePoint3d> arPoints) {
        return Chunk(6, [&](CProxyChunkWriter& data) { data.Points(arPoints); });
    }
    CForeign& Matrix(std::uint32_t nType, const AcGeMatrix3d& matrix) {
        return Chunk(nType, [&](CProxyChunkWriter& data) {
            for (const auto& row : matrix.entry)
                for (const double entry : row)
                    data.Real(entry);
            if (nType == 30) data.Long(0);
        });
    }
    CBytes Bytes() const {
        CBitWriter head;
        head.RL(static_cast<std::uint32_t>(m_bytes.size() + 8));
        head.RL(m_nChunks);
        CBytes bytes = head.Take();
        bytes.insert(bytes.end(), m_bytes.begin(), m_bytes.end());
        return bytes;
    }
    CDisplayList Read() const { return ReadBytes(Bytes()); }

private:
    CBytes m_bytes;
    std::uint32_t m_nChunks = 0;
};

const std::vector<AcGePoint3d> g_arCorner = {{0, 0, 1}, {10, 0, 2}, {10, 5, 3}};

} // namespace

TEST(WriteProxyGraphics, WritesAnEmptyPictureAsAHeadAlone) {
    EXPECT_EQ(Written({}), HexBytes("08000000 00000000"));
    EXPECT_TRUE(ThereAndBack({}).empty());
}

TEST(WriteProxyGraphics, BeginsWithTheExtentsAndTellsColoursAndLineTypes) {
    const CBytes bytes = Written({Of(CPolylinePrimitive{{{1, 0, 0}, {2, 0, 0}}}, 3)});
    EXPECT_EQ(bytes, HexBytes("94000000 04000000"
                              "38000000 01000000"
                              "000000000000F03F 0000000000000000 0000000000000000"
                              "0000000000000040 0000000000000000 0000000000000000"
                              "0C000000 0E000000 03000000"
                              "0C000000 12000000 FF7F0000"
                              "3C000000 06000000 02000000"
                              "000000000000F03F 0000000000000000 0000000000000000"
                              "0000000000000040 0000000000000000 0000000000000000"));
}

TEST(WriteProxyGraphics, GivesLinesWithTheirColoursBack) {
    CPrimitive byBlock = Of(CPolylinePrimitive{g_arCorner}, 0);
    byBlock.m_strLinetype = "ByBlock";
    const CDisplayList back = ThereAndBack(
        {Of(CPolylinePrimitive{g_arCorner}, 5), byBlock, Of(CPolylinePrimitive{g_arCorner}, 256)});
    ASSERT_EQ(back.size(), 3u);
    EXPECT_EQ(back[0].m_nColor, 5);
    EXPECT_EQ(back[1].m_nColor, 0);
    EXPECT_EQ(back[1].m_strLinetype, "ByBlock");
    EXPECT_EQ(back[2].m_nColor, 256);
    EXPECT_EQ(back[2].m_strLinetype, "ByLayer");
    for (const CPrimitive& primitive : back)
        EXPECT_EQ(As<CPolylinePrimitive>(primitive).m_arPoints, g_arCorner);
}

TEST(WriteProxyGraphics, GivesArcsAndCirclesBack) {
    const CArcPrimitive arc{{1, 2, 3}, 5, {0, 0, 1}, {0, 1, 0}, 1.25};
    const CArcPrimitive slanted{{1, 2, 3}, 5, {1, 0, 0}, {0, 1, 0}, 1.25};
    const CArcPrimitive circle{{4, 5, 6}, 2, {0, 0, 1}, {1, 0, 0}, 2 * std::numbers::pi};
    for (const CArcPrimitive& one : {arc, slanted, circle}) {
        const CDisplayList back = ThereAndBack({Of(one)});
        ASSERT_EQ(back.size(), 1u);
        const auto& read = As<CArcPrimitive>(back[0]);
        EXPECT_EQ(read.m_ptCenter, one.m_ptCenter);
        EXPECT_EQ(read.m_dRadius, one.m_dRadius);
        EXPECT_EQ(read.m_vecNormal, one.m_vecNormal);
        EXPECT_EQ(read.m_dSweep, one.m_dSweep);
        ExpectSameBox(ExtentsOf(back), ExtentsOf({Of(one)}), 1e-12);
    }
}

TEST(WriteProxyGraphics, WritesAnArcThatRunsClockwiseFromItsOtherEnd) {
    const CArcPrimitive arc{{0, 0, 0}, 5, {0, 0, 1}, {1, 0, 0}, -g_dQuarter};
    const CDisplayList back = ThereAndBack({Of(arc)});
    ASSERT_EQ(back.size(), 1u);
    const auto& read = As<CArcPrimitive>(back[0]);
    EXPECT_EQ(read.m_dSweep, g_dQuarter);
    EXPECT_EQ(read.m_vecStart, AcGeVector3d(0, -1, 0));
    EXPECT_EQ(read.m_vecNormal, AcGeVector3d(0, 0, 1));
}

TEST(WriteProxyGraphics, WritesThinPiecesAsLinesAndBulgesAsArcs) {
    const CPlinePrimitive pline{{{{0, 0}}, {{10, 0}}, {{10, 10}, 1.0}, {{0, 10}, -1.0}, {{0, 5}}}, true};
    const CDisplayList back = ThereAndBack({Of(pline)});
    ASSERT_EQ(back.size(), 4u);
    EXPECT_EQ(As<CPolylinePrimitive>(back[0]).m_arPoints.size(), 3u);
    EXPECT_EQ(As<CArcPrimitive>(back[1]).m_ptCenter, AcGePoint3d(5, 10, 0));
    EXPECT_NEAR(As<CArcPrimitive>(back[1]).m_dSweep, std::numbers::pi, 1e-12);
    EXPECT_NEAR(As<CArcPrimitive>(back[2]).m_dSweep, std::numbers::pi, 1e-12);
    EXPECT_EQ(As<CPolylinePrimitive>(back[3]).m_arPoints,
              (std::vector<AcGePoint3d>{{0, 5, 0}, {0, 0, 0}})); // what closes it
    ExpectSameBox(ExtentsOf(back), ExtentsOf({Of(pline)}), 1e-12);
}

TEST(WriteProxyGraphics, GivesAWideFrameBackAsSuch) {
    const CPlinePrimitive frame{
        {{{0, 0}, 0, 2, 2}, {{40, 0}, 0, 2, 2}, {{40, 30}, 0, 2, 2}, {{0, 30}, 0, 2, 2}}, true};
    const CDisplayList back = ThereAndBack({Of(frame, 1)});
    ASSERT_EQ(back.size(), 1u);
    const auto& read = As<CPlinePrimitive>(back[0]);
    EXPECT_TRUE(read.m_bClosed);
    ASSERT_EQ(read.m_arVertices.size(), 4u);
    EXPECT_NEAR(read.m_arVertices[1].m_dStartWidth, 2.0, 1e-12);
    ExpectSameBox(ExtentsOf(back), ExtentsOf({Of(frame)}), 1e-9);
}

TEST(WriteProxyGraphics, FillsNothingBehindAWideLine) {
    const CBytes bytes = Written({Of(CPlinePrimitive{{{{0, 0}, 0, 2, 2}, {{40, 0}}}, false})});
    CBytes arTypes;
    for (std::size_t nAt = 8; nAt < bytes.size(); nAt += bytes[nAt]) // no chunk is longer than a byte tells
        arTypes.push_back(bytes[nAt + 4]);
    EXPECT_EQ(arTypes, (CBytes{1, 14, 18, 20, 7, 20}));
    EXPECT_EQ(bytes[bytes.size() - 4], 0);
}

TEST(WriteProxyGraphics, GivesTextsBackInTheDrawingsCodePage) {
    const CTestDrawing drawing; // which measures
    CTextPrimitive text;
    text.m_ptPosition = {1, 2, 0};
    text.m_vecNormal = {0, 0, 1};
    text.m_vecDirection = {0, 1, 0};
    text.m_strText = "固结快剪";
    text.m_nLength = 2;
    text.m_dHeight = 3.5;
    text.m_dXScale = 0.7;
    text.m_dOblique = 0.25;
    text.m_dTracking = 80.0;
    text.m_strFont = "宋体";
    text.m_strBigFont = "hztxt";
    const CDisplayList back = ThereAndBack({Of(text)});
    ASSERT_EQ(back.size(), 1u);
    const auto& read = As<CTextPrimitive>(back[0]);
    EXPECT_EQ(read.m_ptPosition, text.m_ptPosition);
    EXPECT_EQ(read.m_vecDirection, text.m_vecDirection);
    EXPECT_EQ(read.m_strText, "固结"); // cut to its length
    EXPECT_EQ(read.m_nLength, -1);
    EXPECT_EQ(read.m_dHeight, 3.5);
    EXPECT_EQ(read.m_dXScale, 0.7);
    EXPECT_EQ(read.m_dOblique, 0.25);
    EXPECT_DOUBLE_EQ(read.m_dTracking, 80.0);
    EXPECT_EQ(read.m_strFont, "宋体");
    EXPECT_EQ(read.m_strBigFont, "hztxt");
    ExpectSameBox(ExtentsOf(back), ExtentsOf({Of(text)}), 1e-12);
}

TEST(WriteProxyGraphics, GivesASplineAsALineThatHardlyDiffers) {
    CSplinePrimitive spline;
    spline.m_arFitPoints = {{0, 0, 4}, {50, 80, 4}, {100, 20, 4}, {150, 90, 4}};
    const CDisplayList back = ThereAndBack({Of(spline)});
    ASSERT_EQ(back.size(), 1u);
    const auto& points = As<CPolylinePrimitive>(back[0]).m_arPoints;
    EXPECT_EQ(points.front(), spline.m_arFitPoints.front());
    EXPECT_EQ(points.back(), spline.m_arFitPoints.back());
    EXPECT_LT(points.size(), 500u);
    ExpectSameBox(ExtentsOf(back), ExtentsOf({Of(spline)}), 0.01);
    for (const CBezier& piece : spline.Pieces())
        for (const double t : {0.1, 0.37, 0.5, 0.91}) {
            const AcGePoint2d at = piece.At(t);
            EXPECT_TRUE(PassesNear(back, {at.x, at.y, 0}, 0.01)) << t;
        }
}

TEST(WriteProxyGraphics, LeavesOutWhatIsNotFinite) {
    CTextPrimitive text;
    text.m_ptPosition.y = g_dNone;
    text.m_strText = "x";
    const CDisplayList back =
        ThereAndBack({Of(CPolylinePrimitive{
                          {{0, 0, 0}, {1, 0, 0}, {g_dNone, 0, 0}, {2, 0, 0}, {3, 0, 0}, {g_dNone, 0, 0}}}),
                      Of(CArcPrimitive{{0, 0, 0}, g_dNone, {0, 0, 1}, {1, 0, 0}, 1.0}), Of(text)});
    ASSERT_EQ(back.size(), 2u); // a line in two parts
    EXPECT_EQ(As<CPolylinePrimitive>(back[0]).m_arPoints.back(), AcGePoint3d(1, 0, 0));
    EXPECT_EQ(As<CPolylinePrimitive>(back[1]).m_arPoints.front(), AcGePoint3d(2, 0, 0));
}

TEST(ReadProxyGraphics, BeginsWithTheEntitysOwnColourAndLineType) {
    AcDbDatabase database;
    AcDbLine line;
    line.setColorIndex(4);
    const CBytes bytes = CForeign().Line(g_arCorner).Bytes();
    const CDisplayList picture = ReadProxyGraphics(bytes, line, WideFromGbk);
    ASSERT_EQ(picture.size(), 1u);
    EXPECT_EQ(picture[0].m_nColor, 4);
    EXPECT_EQ(picture[0].m_strLinetype, "ByLayer");
}

TEST(ReadProxyGraphics, TakesColoursInBothForms) {
    CForeign file;
    for (const std::uint32_t nColor : {0xC3000004u, 0xC0000000u, 0xC1000000u, 0xC2112233u})
        file.Long(22, nColor).Line(g_arCorner);
    const CDisplayList picture = file.Long(14, 7).Line(g_arCorner).Long(14, 999).Line(g_arCorner).Read();
    std::vector<Adesk::UInt16> arColors;
    for (const CPrimitive& primitive : picture)
        arColors.push_back(primitive.m_nColor);
    EXPECT_EQ(arColors, (std::vector<Adesk::UInt16>{4, 256, 0, 256, 7, 7}));
}

TEST(ReadProxyGraphics, TakesEitherNumberForByBlock) {
    const CDisplayList picture = CForeign()
                                     .Long(18, 0xFFFFFFFE)
                                     .Line(g_arCorner)
                                     .Long(18, 0xFFFFFFFF)
                                     .Line(g_arCorner)
                                     .Long(18, 0x7FFE)
                                     .Long(18, 3) // of the drawing's own
                                     .Line(g_arCorner)
                                     .Read();
    ASSERT_EQ(picture.size(), 3u);
    EXPECT_EQ(picture[0].m_strLinetype, "ByBlock");
    EXPECT_EQ(picture[1].m_strLinetype, "ByLayer");
    EXPECT_EQ(picture[2].m_strLinetype, "ByBlock");
}

TEST(ReadProxyGraphics, TakesThreePointFormsSectorsAndChords) {
    const std::vector<AcGePoint3d> arPoints = {{5, 0, 0}, {0, 5, 0}, {-5, 0, 0}};
    CForeign file;
    for (const std::uint32_t nType : {3u, 5u})
        file.Chunk(nType, [&](CProxyChunkWriter& data) {
            for (const AcGePoint3d& point : arPoints)
                data.Point(point);
            if (nType == 5) data.Long(2);
        });
    const CDisplayList picture = file.Read();
    ASSERT_EQ(picture.size(), 3u);
    EXPECT_NEAR(As<CArcPrimitive>(picture[0]).m_dSweep, 2 * std::numbers::pi, 1e-12);
    EXPECT_NEAR(As<CArcPrimitive>(picture[1]).m_dSweep, std::numbers::pi, 1e-12);
    const auto& chord = As<CPolylinePrimitive>(picture[2]).m_arPoints;
    EXPECT_NEAR(chord[1].distanceTo({-5, 0, 0}), 0.0, 1e-9);
    const CDisplayList sector = CForeign()
                                    .Chunk(4,
                                           [](CProxyChunkWriter& data) {
                                               data.Point({1, 1, 0});
                                               data.Real(2.0);
                                               data.Vector({0, 0, 1});
                                               data.Vector({1, 0, 0});
                                               data.Real(1.0);
                                               data.Long(1);
                                           })
                                    .Read();
    ASSERT_EQ(sector.size(), 2u);
    EXPECT_EQ(As<CPolylinePrimitive>(sector[1]).m_arPoints[1], AcGePoint3d(1, 1, 0));
}

TEST(ReadProxyGraphics, ClosesPolygonsAndFillsWhatIsLikeAWideLine) {
    const auto square = [](CProxyChunkWriter& data) {
        data.Points({{0, 0, 0}, {9, 0, 0}, {9, 2, 0}, {0, 2, 0}});
    };
    const auto raised = [](CProxyChunkWriter& data) {
        data.Points({{0, 0, 1}, {9, 0, 1}, {9, 2, 1}, {0, 2, 1}});
    };
    const CDisplayList picture = CForeign()
                                     .Chunk(7, square)
                                     .Long(20, 1)
                                     .Chunk(7, square)
                                     .Chunk(7, raised)
                                     .Long(20, 2)
                                     .Chunk(7, square)
                                     .Read();
    ASSERT_EQ(picture.size(), 4u);
    EXPECT_EQ(As<CPolylinePrimitive>(picture[0]).m_arPoints.size(), 5u);
    EXPECT_EQ(As<CPlinePrimitive>(picture[1]).m_arVertices[0].m_dStartWidth, 2.0);
    EXPECT_EQ(As<CPolylinePrimitive>(picture[2]).m_arPoints.size(), 5u);
    EXPECT_EQ(As<CPolylinePrimitive>(picture[3]).m_arPoints.size(), 5u);
}

TEST(ReadProxyGraphics, TakesPlainTextsAndWideOnes) {
    const auto place = [](CProxyChunkWriter& data) {
        data.Point({1, 2, 0});
        data.Vector({0, 0, 1});
        data.Vector({1, 0, 0});
    };
    const auto size = [](CProxyChunkWriter& data) {
        for (const double value : {3.0, 0.5, 0.1})
            data.Real(value);
    };
    const auto wide = [](CProxyChunkWriter& data) { data.Long(0x00007ED3); }; // one character and its zero
    const CDisplayList picture = CForeign()
                                     .Chunk(10,
                                            [&](CProxyChunkWriter& data) {
                                                place(data);
                                                size(data);
                                                data.Text("固");
                                            })
                                     .Chunk(36,
                                            [&](CProxyChunkWriter& data) {
                                                place(data);
                                                size(data);
                                                wide(data);
                                            })
                                     .Chunk(38,
                                            [&](CProxyChunkWriter& data) {
                                                place(data);
                                                wide(data);
                                                data.Long(0xFFFFFFFF);
                                                data.Long(0);
                                                size(data);
                                                data.Real(90.0); // percent
                                                for (int i = 0; i < 9; ++i)
                                                    data.Long(0);
                                                wide(data);
                                                data.Long(0);
                                                data.Long(0);
                                            })
                                     .Read();
    ASSERT_EQ(picture.size(), 3u);
    EXPECT_EQ(As<CTextPrimitive>(picture[0]).m_strText, "固");
    EXPECT_EQ(As<CTextPrimitive>(picture[0]).m_dXScale, 0.5);
    EXPECT_EQ(As<CTextPrimitive>(picture[0]).m_strFont, "txt");
    EXPECT_EQ(As<CTextPrimitive>(picture[1]).m_strText, "结");
    EXPECT_EQ(As<CTextPrimitive>(picture[2]).m_dTracking, 90.0);
    EXPECT_EQ(As<CTextPrimitive>(picture[2]).m_dHeight, 3.0);
    EXPECT_EQ(As<CTextPrimitive>(picture[2]).m_strFont, "结");
    EXPECT_EQ(As<CTextPrimitive>(picture[2]).m_strBigFont, "");
}

TEST(ReadProxyGraphics, AppliesMatricesWithinMatrices) {
    const AcGeMatrix3d move = AcGeMatrix3d::translation({100, 0, 0});
    const AcGeMatrix3d twice = AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin);
    const CDisplayList picture = CForeign()
                                     .Matrix(29, move)
                                     .Matrix(30, twice)
                                     .Line({{0, 0, 0}, {1, 2, 0}})
                                     .Raw(31, {})
                                     .Line({{0, 0, 0}, {1, 2, 0}})
                                     .Raw(31, {})
                                     .Raw(31, {}) // one too many
                                     .Line({{0, 0, 0}, {1, 2, 0}})
                                     .Read();
    ASSERT_EQ(picture.size(), 3u);
    EXPECT_EQ(As<CPolylinePrimitive>(picture[0]).m_arPoints[1], AcGePoint3d(102, 4, 0));
    EXPECT_EQ(As<CPolylinePrimitive>(picture[1]).m_arPoints[1], AcGePoint3d(101, 2, 0));
    EXPECT_EQ(As<CPolylinePrimitive>(picture[2]).m_arPoints[1], AcGePoint3d(1, 2, 0));
}

TEST(ReadProxyGraphics, PassesOverWhatItDoesNotKnow) {
    const CDisplayList picture = CForeign()
                                     .Raw(51, {0, 0, 0, 0})
                                     .Raw(8, {1, 2, 3, 4, 5, 6, 7, 8})
                                     .Long(19, 5)
                                     .Chunk(24, [](CProxyChunkWriter& data) { data.Real(2.0); })
                                     .Chunk(32,
                                            [](CProxyChunkWriter& data) {
                                                data.Points(g_arCorner);
                                                data.Vector({0, 0, 1});
                                            })
                                     .Read();
    ASSERT_EQ(picture.size(), 1u);
    EXPECT_EQ(As<CPolylinePrimitive>(picture[0]).m_arPoints, g_arCorner);
}

TEST(ReadProxyGraphics, LeavesOutAChunkThatIsTooShortForItsType) {
    CBytes data(52, 0);
    data[0] = 3; // points, of which there are two
    const CDisplayList picture = CForeign()
                                     .Raw(6, data)
                                     .Raw(4, CBytes(20, 0))
                                     .Raw(11, CBytes(72, 65))
                                     .Raw(14, {})
                                     .Raw(7, {0, 0, 0, 0})
                                     .Line({{0, 0, 0}, {g_dNone, 0, 0}})
                                     .Line(g_arCorner)
                                     .Read();
    ASSERT_EQ(picture.size(), 1u);
    EXPECT_EQ(As<CPolylinePrimitive>(picture[0]).m_arPoints, g_arCorner);
}

TEST(ReadProxyGraphics, EndsWhereTheSizeOfAChunkIsImpossible) {
    for (const std::uint8_t nSize : {std::uint8_t{0}, std::uint8_t{7}, std::uint8_t{255}}) {
        CBytes bytes = CForeign().Line(g_arCorner).Long(14, 3).Line(g_arCorner).Bytes();
        bytes[8 + 84] = nSize; // of the second chunk
        EXPECT_EQ(ReadBytes(bytes).size(), 1u) << int{nSize};
    }
}

TEST(ReadProxyGraphics, TakesNoMoreThanTheHeadTells) {
    CBytes bytes = CForeign().Line(g_arCorner).Line(g_arCorner).Bytes();
    bytes[4] = 1;
    EXPECT_EQ(ReadBytes(bytes).size(), 1u);
    bytes[4] = 2;
    bytes[0] = 8 + 84;
    EXPECT_EQ(ReadBytes(bytes).size(), 1u);
    bytes[0] = 0;
    EXPECT_TRUE(ReadBytes(bytes).empty());
}

TEST(ReadProxyGraphics, ReadsEveryBeginningOfAPicture) {
    const CBytes bytes = CForeign().Line(g_arCorner).Long(14, 3).Line(g_arCorner).Bytes();
    for (std::size_t n = 0; n < bytes.size(); ++n)
        EXPECT_EQ(ReadBytes(CByteView(bytes).first(n)).size(), n < 8 + 84 ? 0u : 1u) << n;
}
