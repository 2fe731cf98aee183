#include "host/files/pline_pieces.h"
#include "host/files/proxy_chunks.h"
#include "host/files/proxy_graphics.h"
#include "host/files/three_point_arc.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <limits>

namespace {

/// How many chords stand for a cubic piece, by how fast its direction can change.
int ChordsOf(const CBezier& piece) {
    constexpr double dTolerance = 0.005; // drawing units, which are millimetres on paper
    const auto& p = piece.m_arPoints;
    double dBend = 0.0;
    for (std::size_t i = 0; i < 2; ++i)
        dBend = std::max(dBend, std::hypot(p[i].x - 2.0 * p[i + 1].x + p[i + 2].x,
                                           p[i].y - 2.0 * p[i + 1].y + p[i + 2].y));
    return static_cast<int>(std::clamp(std::ceil(std::sqrt(0.75 * dBend / dTolerance)), 1.0, 200.0));
}

/// Builds the bytes chunk by chunk.
class CProxyGraphicsWriter {
public:
    explicit CProxyGraphicsWriter(const CDrawingText& text)
        : m_text(text) {}

    CBytes Write(const CDisplayList& picture) {
        WriteExtents(ExtentsOf(picture));
        for (const CPrimitive& primitive : picture) {
            WriteTraits(primitive);
            std::visit([this](const auto& shape) { Write(shape); }, primitive.m_shape);
        }
        CBitWriter head;
        head.RL(static_cast<std::uint32_t>(g_nProxyChunkHead + m_bytes.size()));
        head.RL(m_nChunks);
        CBytes bytes = head.Take();
        bytes.insert(bytes.end(), m_bytes.begin(), m_bytes.end());
        return bytes;
    }

private:
    /// Appends a chunk that a function fills, unless a number in it is not finite.
    template <class Fill>
    void Chunk(CProxyChunkType type, Fill fill) {
        CProxyChunkWriter data;
        fill(data);
        if (!data.IsFinite()) return;
        const CBytes bytes = data.Take();
        CBitWriter head;
        head.RL(static_cast<std::uint32_t>(g_nProxyChunkHead + bytes.size()));
        head.RL(static_cast<std::uint32_t>(type));
        m_bytes.insert(m_bytes.end(), head.Bytes().begin(), head.Bytes().end());
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
        ++m_nChunks;
    }

    void Trait(CProxyChunkType type, std::uint32_t nValue) {
        Chunk(type, [nValue](CProxyChunkWriter& data) { data.Long(nValue); });
    }

    void WriteExtents(const AcDbExtents& box) {
        if (box.isEmpty()) return;
        Chunk(CProxyChunkType::Extents, [&box](CProxyChunkWriter& data) {
            data.Point(box.minPoint());
            data.Point(box.maxPoint());
        });
    }

    /// Line types of the drawing's own are left out: programs don't agree on how they are counted.
    void WriteTraits(const CPrimitive& primitive) {
        if (m_nColor != primitive.m_nColor) Trait(CProxyChunkType::Color, m_nColor = primitive.m_nColor);
        const std::wstring strLinetype = WideFromGbk(primitive.m_strLinetype);
        const std::uint32_t nLinetype = SameName(strLinetype, L"ByLayer")   ? g_nProxyByLayer
                                        : SameName(strLinetype, L"ByBlock") ? g_nProxyByBlock
                                                                            : m_nLinetype;
        if (m_nLinetype != nLinetype) Trait(CProxyChunkType::Linetype, m_nLinetype = nLinetype);
    }

    void WriteLine(const std::vector<AcGePoint3d>& arPoints) {
        if (arPoints.size() < 2) return;
        Chunk(CProxyChunkType::Polyline, [&arPoints](CProxyChunkWriter& data) { data.Points(arPoints); });
    }

    /// A point that cannot be drawn parts the line.
    void Write(const CPolylinePrimitive& shape) {
        std::vector<AcGePoint3d> arPart;
        for (const AcGePoint3d& point : shape.m_arPoints) {
            if (std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z)) {
                arPart.push_back(point);
                continue;
            }
            WriteLine(arPart);
            arPart.clear();
        }
        WriteLine(arPart);
    }

    void Write(const CPlinePrimitive& shape) {
        const std::vector<CPlinePiece> pieces = PiecesOf(shape);
        for (const CBandOutline& outline : WideBandsOf(pieces))
            WriteFilled(outline);
        std::vector<AcGePoint3d> arLine; // straight thin pieces that run on
        for (const CPlinePiece& piece : pieces) {
            const AcGePoint3d from(piece.m_ptFrom.x, piece.m_ptFrom.y, 0.0);
            const bool bStraight = !piece.IsWide() && !piece.m_arc;
            if (!arLine.empty() && !(bStraight && arLine.back().distanceTo(from) == 0.0)) {
                WriteLine(arLine);
                arLine.clear();
            }
            if (bStraight && arLine.empty()) arLine.push_back(from);
            if (bStraight) arLine.emplace_back(piece.m_ptTo.x, piece.m_ptTo.y, 0.0);
            if (!piece.IsWide() && piece.m_arc) WriteBulge(*piece.m_arc);
        }
        WriteLine(arLine);
    }

    void WriteFilled(const CBandOutline& outline) {
        std::vector<AcGePoint3d> arPoints;
        for (const AcGePoint2d& point : outline)
            arPoints.emplace_back(point.x, point.y, 0.0);
        Trait(CProxyChunkType::Fill, 1);
        Chunk(CProxyChunkType::Polygon, [&arPoints](CProxyChunkWriter& data) { data.Points(arPoints); });
        Trait(CProxyChunkType::Fill, 0);
    }

    void WriteBulge(const CBulgeArc& arc) {
        Write(CArcPrimitive{{arc.m_ptCenter.x, arc.m_ptCenter.y, 0.0},
                            arc.m_dRadius,
                            AcGeVector3d::kZAxis,
                            {std::cos(arc.m_dStart), std::sin(arc.m_dStart), 0.0},
                            arc.m_dSweep});
    }

    /// One that runs clockwise is written from its other end.
    void Write(const CArcPrimitive& shape) {
        constexpr double dRounding = 1e-9;
        const bool bFull = std::fabs(shape.m_dSweep) >= g_dFullTurn - dRounding;
        const AcGeVector3d start =
            shape.m_dSweep < 0.0 ? CArcFrame(shape).At(shape.m_dSweep) - shape.m_ptCenter : shape.m_vecStart;
        Chunk(bFull ? CProxyChunkType::Circle : CProxyChunkType::Arc, [&](CProxyChunkWriter& data) {
            data.Point(shape.m_ptCenter);
            data.Real(shape.m_dRadius);
            data.Vector(shape.m_vecNormal);
            if (bFull) return;
            data.Vector(start.normal());
            data.Real(std::fabs(shape.m_dSweep));
            data.Long(0); // nothing but the arc
        });
    }

    std::string Encoded(const std::string& strGbk) const { return m_text.Encode(WideFromGbk(strGbk)); }

    void Write(const CTextPrimitive& shape) {
        std::wstring strShown = WideFromGbk(shape.m_strText);
        if (shape.m_nLength >= 0) strShown = strShown.substr(0, static_cast<std::size_t>(shape.m_nLength));
        Chunk(CProxyChunkType::StyledText, [&](CProxyChunkWriter& data) {
            data.Point(shape.m_ptPosition);
            data.Vector(shape.m_vecNormal);
            data.Vector(shape.m_vecDirection);
            data.Text(m_text.Encode(strShown));
            data.Long(std::numeric_limits<std::uint32_t>::max()); // all of it
            data.Long(1);                                         // no codes in it
            data.Real(shape.m_dHeight);
            data.Real(shape.m_dXScale);
            data.Real(shape.m_dOblique);
            data.Real(shape.m_dTracking / 100.0); // 1 is the usual one
            for (int i = 0; i < 5; ++i)
                data.Long(0); // not backwards, upside down, vertical, underlined or overlined
            data.Text(Encoded(shape.m_strFont));
            data.Text(Encoded(shape.m_strBigFont));
        });
    }

    void Write(const CSplinePrimitive& shape) {
        const std::vector<AcGePoint3d>& arGiven =
            shape.m_arFitPoints.empty() ? shape.m_nurbs.m_arControlPoints : shape.m_arFitPoints;
        std::vector<AcGePoint3d> arPoints;
        for (const CBezier& piece : shape.Pieces()) {
            const int nChords = ChordsOf(piece);
            for (int i = arPoints.empty() ? 0 : 1; i <= nChords; ++i) {
                const AcGePoint2d point = piece.At(static_cast<double>(i) / nChords);
                arPoints.emplace_back(point.x, point.y, arGiven.front().z);
            }
        }
        WriteLine(arPoints);
    }

    static constexpr std::uint32_t s_nNotYet = std::numeric_limits<std::uint32_t>::max();

    const CDrawingText& m_text;
    CBytes m_bytes; ///< of all chunks
    std::uint32_t m_nChunks = 0;
    std::uint32_t m_nColor = s_nNotYet, m_nLinetype = s_nNotYet; ///< in force
};

} // namespace

CBytes WriteProxyGraphics(const CDisplayList& picture, const CDrawingText& text) {
    return CProxyGraphicsWriter(text).Write(picture);
}
