#include "host/files/pline_pieces.h"
#include "host/files/proxy_chunks.h"
#include "host/files/proxy_graphics.h"
#include "host/files/three_point_arc.h"
#include "platform/acad/display_transform.h"
#include "platform/windows/code_page.h"

#include <algorithm>

namespace {

constexpr double g_dUsualTracking = 100.0;
constexpr std::string_view g_szUsualFont = "txt";

/// A vector across another one.
AcGeVector3d Across(const AcGeVector3d& vec) {
    const bool bSteep = std::fabs(vec.x) <= std::fabs(vec.z);
    return vec.crossProduct(bSteep ? AcGeVector3d::kXAxis : AcGeVector3d::kYAxis).normal();
}

class CProxyGraphicsReader {
public:
    CProxyGraphicsReader(const AcDbEntity& entity, const CProxyTextDecoder& decode)
        : m_decode(decode)
        , m_nEntityColor(entity.colorIndex()) {
        m_traits.m_nColor = entity.colorIndex();
        m_traits.m_strLinetype = entity.LinetypeName();
    }

    CDisplayList Read(CByteView bytes) {
        CProxyChunkReader head(bytes);
        const std::uint32_t nSize = head.Long(), nChunks = head.Long();
        if (head.Failed()) return {};
        CByteView rest = bytes.first(std::min<std::size_t>(nSize, bytes.size()));
        rest = rest.subspan(std::min<std::size_t>(g_nProxyChunkHead, rest.size()));
        for (std::uint32_t i = 0; i < nChunks && rest.size() >= g_nProxyChunkHead; ++i) {
            CProxyChunkReader chunk(rest);
            const std::uint32_t nChunk = chunk.Long(), nType = chunk.Long();
            if (nChunk < g_nProxyChunkHead || nChunk > rest.size()) break;
            CProxyChunkReader data(rest.subspan(g_nProxyChunkHead, nChunk - g_nProxyChunkHead));
            Take(static_cast<CProxyChunkType>(nType), data);
            rest = rest.subspan(nChunk);
        }
        return std::move(m_picture);
    }

private:
    void Take(CProxyChunkType type, CProxyChunkReader& data) {
        switch (type) {
        case CProxyChunkType::Circle:
            return TakeCircle(data);
        case CProxyChunkType::CircleOf3Points:
            return TakeThreePoints(data, true);
        case CProxyChunkType::Arc:
            return TakeArc(data);
        case CProxyChunkType::ArcOf3Points:
            return TakeThreePoints(data, false);
        case CProxyChunkType::Polyline:
        case CProxyChunkType::PolylineWithNormal:
            return Add(CPolylinePrimitive{data.Points()}, data);
        case CProxyChunkType::Polygon:
            return TakePolygon(data);
        case CProxyChunkType::Text:
        case CProxyChunkType::WideText:
            return TakeText(data, type == CProxyChunkType::WideText);
        case CProxyChunkType::StyledText:
        case CProxyChunkType::StyledWideText:
            return TakeStyledText(data, type == CProxyChunkType::StyledWideText);
        case CProxyChunkType::PushMatrix:
        case CProxyChunkType::PushMatrix2:
            return PushMatrix(data);
        case CProxyChunkType::PopMatrix:
            if (!m_arMatrices.empty()) m_arMatrices.pop_back();
            return;
        default:
            return TakeTrait(type, data);
        }
    }

    void TakeTrait(CProxyChunkType type, CProxyChunkReader& data) {
        if (type != CProxyChunkType::Color && type != CProxyChunkType::Linetype &&
            type != CProxyChunkType::Fill && type != CProxyChunkType::TrueColor)
            return;
        const std::uint32_t nValue = data.Long();
        if (data.Failed()) return;
        if (type == CProxyChunkType::Color && nValue <= g_nColorByLayer)
            m_traits.m_nColor = static_cast<Adesk::UInt16>(nValue);
        if (type == CProxyChunkType::Linetype) SetLinetype(nValue);
        if (type == CProxyChunkType::Fill) m_bFill = nValue == 1;
        if (type == CProxyChunkType::TrueColor) SetTrueColor(nValue);
    }

    /// A position among the drawing's line types is not taken: programs don't agree on how they are counted.
    void SetLinetype(std::uint32_t nValue) {
        constexpr std::uint32_t nByLayer = 0xFFFFFFFF, nByBlock = 0xFFFFFFFE; // as some programs have it
        if (nValue == g_nProxyByLayer || nValue == nByLayer) m_traits.m_strLinetype = "ByLayer";
        if (nValue == g_nProxyByBlock || nValue == nByBlock) m_traits.m_strLinetype = "ByBlock";
    }

    /// Only what stands for a colour index can be shown; else the entity's own colour is.
    void SetTrueColor(std::uint32_t nValue) {
        enum : std::uint32_t { nByLayer = 0xC0, nByBlock = 0xC1, nIndex = 0xC3 };
        const std::uint32_t nMethod = nValue >> 24;
        m_traits.m_nColor = nMethod == nByLayer   ? g_nColorByLayer
                            : nMethod == nByBlock ? g_nColorByBlock
                            : nMethod == nIndex   ? static_cast<Adesk::UInt16>(nValue & 0xFF)
                                                  : m_nEntityColor;
    }

    void PushMatrix(CProxyChunkReader& data) {
        AcGeMatrix3d matrix;
        for (auto& row : matrix.entry)
            for (double& entry : row)
                entry = data.Real();
        if (data.Failed()) matrix.setToIdentity(); // to be popped all the same
        m_arMatrices.push_back(m_arMatrices.empty() ? matrix : m_arMatrices.back() * matrix);
    }

    template <class Shape>
    void Add(Shape shape, const CProxyChunkReader& data) {
        if (data.Failed()) return;
        CPrimitive primitive = m_traits;
        primitive.m_shape = std::move(shape);
        if (m_arMatrices.empty()) return m_picture.push_back(std::move(primitive));
        for (CPrimitive& image : Transformed({std::move(primitive)}, m_arMatrices.back()))
            m_picture.push_back(std::move(image));
    }

    void TakeCircle(CProxyChunkReader& data) {
        CArcPrimitive circle;
        circle.m_ptCenter = data.Point();
        circle.m_dRadius = data.Real();
        circle.m_vecNormal = data.Vector();
        circle.m_vecStart = Across(circle.m_vecNormal);
        circle.m_dSweep = g_dFullTurn;
        Add(circle, data);
    }

    void TakeArc(CProxyChunkReader& data) {
        CArcPrimitive arc;
        arc.m_ptCenter = data.Point();
        arc.m_dRadius = data.Real();
        arc.m_vecNormal = data.Vector();
        arc.m_vecStart = data.Vector();
        arc.m_dSweep = data.Real();
        AddArc(arc, data.Long(), data);
    }

    void TakeThreePoints(CProxyChunkReader& data, bool bFull) {
        const AcGePoint3d first = data.Point(), second = data.Point(), third = data.Point();
        std::optional<CArcPrimitive> arc = ArcThrough(first, second, third);
        if (!arc) return Add(CPolylinePrimitive{{first, second, third}}, data);
        if (bFull) arc->m_dSweep = g_dFullTurn;
        AddArc(*arc, bFull ? 0 : data.Long(), data);
    }

    /// An arc with what closes it.
    void AddArc(const CArcPrimitive& arc, std::uint32_t nType, const CProxyChunkReader& data) {
        constexpr std::uint32_t nSector = 1, nChord = 2;
        const CArcFrame frame(arc);
        Add(arc, data);
        if (nType == nSector)
            Add(CPolylinePrimitive{{frame.At(0.0), arc.m_ptCenter, frame.At(arc.m_dSweep)}}, data);
        if (nType == nChord) Add(CPolylinePrimitive{{frame.At(0.0), frame.At(arc.m_dSweep)}}, data);
    }

    void TakePolygon(CProxyChunkReader& data) {
        std::vector<AcGePoint3d> arPoints = data.Points();
        if (data.Failed() || arPoints.empty()) return;
        if (m_bFill)
            if (auto line = FilledAsLine(arPoints)) return Add(std::move(*line), data);
        arPoints.push_back(AcGePoint3d(arPoints.front()));
        Add(CPolylinePrimitive{std::move(arPoints)}, data);
    }

    /// What is filled can be shown as a wide line, if it has the shape of one.
    static std::optional<CPlinePrimitive> FilledAsLine(const std::vector<AcGePoint3d>& arPoints) {
        CBandOutline outline;
        for (const AcGePoint3d& point : arPoints) {
            if (point.z != 0.0) return {};
            outline.emplace_back(point.x, point.y);
        }
        return WideLineOf(outline);
    }

    std::string TextOf(CProxyChunkReader& data, bool bWide) const {
        return GbkFromWide(bWide ? data.WideText() : m_decode(data.Text()));
    }

    static CTextPrimitive PlaceOfText(CProxyChunkReader& data) {
        CTextPrimitive text;
        text.m_ptPosition = data.Point();
        text.m_vecNormal = data.Vector();
        text.m_vecDirection = data.Vector();
        return text;
    }

    static void TakeSize(CTextPrimitive& text, CProxyChunkReader& data) {
        text.m_dHeight = data.Real();
        text.m_dXScale = data.Real();
        text.m_dOblique = data.Real();
    }

    void TakeText(CProxyChunkReader& data, bool bWide) {
        CTextPrimitive text = PlaceOfText(data);
        TakeSize(text, data);
        text.m_strText = TextOf(data, bWide);
        text.m_strFont = g_szUsualFont;
        Add(std::move(text), data);
    }

    void TakeStyledText(CProxyChunkReader& data, bool bWide) {
        constexpr double dMostAsFactor = 10.0; // some programs give it in percent
        constexpr int nDirections = 5, nTraitsOfFont = 4;
        CTextPrimitive text = PlaceOfText(data);
        text.m_strText = TextOf(data, bWide);
        text.m_nLength = static_cast<int>(data.Long());
        data.Long(); // whether there are codes in it
        TakeSize(text, data);
        const double dTracking = data.Real();
        text.m_dTracking = dTracking > dMostAsFactor ? dTracking : dTracking * g_dUsualTracking;
        for (int i = 0; i < nDirections + (bWide ? nTraitsOfFont : 0); ++i)
            data.Long();
        const std::string strTypeface = bWide ? TextOf(data, bWide) : std::string();
        const std::string strFile = TextOf(data, bWide);
        text.m_strFont = strTypeface.empty() ? strFile : strTypeface;
        text.m_strBigFont = TextOf(data, bWide);
        Add(std::move(text), data);
    }

    const CProxyTextDecoder& m_decode;
    Adesk::UInt16 m_nEntityColor;
    CPrimitive m_traits; ///< those in force; its shape is never looked at
    bool m_bFill = false;
    std::vector<AcGeMatrix3d> m_arMatrices; ///< each with those below it
    CDisplayList m_picture;
};

} // namespace

CDisplayList ReadProxyGraphics(CByteView bytes, const AcDbEntity& entity, const CProxyTextDecoder& decode) {
    return CProxyGraphicsReader(entity, decode).Read(bytes);
}
