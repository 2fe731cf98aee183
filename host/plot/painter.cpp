#include "host/plot/painter.h"

#include "host/plot/arc_path.h"
#include "host/plot/colors.h"
#include "host/plot/paintable.h"
#include "host/plot/polyline_shape.h"
#include "host/plot/text_layout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include <strings.h>

namespace {

bool IsContinuous(const std::string& strName) {
    static constexpr std::array g_arNames = {"", "ByLayer", "ByBlock", "Continuous"};
    return std::any_of(g_arNames.begin(), g_arNames.end(),
                       [&](const char* strOne) { return strcasecmp(strName.c_str(), strOne) == 0; });
}

/// Paints one primitive after the other, each by the overload for its shape.
class CPainter {
public:
    CPainter(const CPaintContext& context, CFonts& fonts, CCanvas& canvas)
        : m_context(context)
        , m_fonts(fonts)
        , m_canvas(canvas) {}

    void Paint(const CPrimitive& primitive) {
        const Adesk::UInt16 nColor = primitive.m_nColor == 256 ? m_context.m_nLayerColor : primitive.m_nColor;
        m_stroke.m_color = PaperColor(nColor);
        m_stroke.m_dashes = {};
        if (m_context.m_fnLinetype && !IsContinuous(primitive.m_strLinetype))
            m_stroke.m_dashes =
                MakeDashes(m_context.m_fnLinetype(primitive.m_strLinetype), m_context.m_dLinetypeScale);
        std::visit([&](const auto& shape) { Draw(shape); }, primitive.m_shape);
    }

private:
    QPointF ToPage(double x, double y) const { return {x - m_context.m_dLeft, m_context.m_dTop - y}; }
    std::optional<QPointF> PaintablePoint(double x, double y) const {
        const QPointF point = ToPage(x, y);
        return IsPaintable(point.x(), point.y()) ? std::optional(point) : std::nullopt;
    }
    void Stroke(const QPainterPath& path) {
        if (!path.isEmpty()) m_canvas.StrokePath(path, m_stroke);
    }

    void Draw(const CPolylinePrimitive& polyline) {
        QPainterPath path;
        bool bConnected = false;
        for (const AcGePoint3d& corner : polyline.m_arPoints) {
            const auto point = PaintablePoint(corner.x, corner.y);
            if (point && bConnected) path.lineTo(*point);
            if (point && !bConnected) path.moveTo(*point);
            bConnected = point.has_value();
        }
        Stroke(path);
    }

    void Draw(const CPlinePrimitive& pline) {
        std::vector<CPolylineVertex> arVertices = pline.m_arVertices;
        for (CPolylineVertex& vertex : arVertices) {
            const QPointF point = ToPage(vertex.m_pt.x, vertex.m_pt.y);
            vertex.m_pt = AcGePoint2d(point.x(), point.y());
            vertex.m_dBulge = -vertex.m_dBulge; // y is turned over
        }
        const CPolylineShape shape = ShapeOf(arVertices, pline.m_bClosed, m_stroke.m_dashes);
        if (!shape.m_wide.isEmpty()) m_canvas.FillPath(shape.m_wide, m_stroke.m_color);
        Stroke(shape.m_thin);
    }

    void Draw(const CArcPrimitive& arc) {
        constexpr double dFullTurn = 2.0 * std::numbers::pi;
        const auto center = PaintablePoint(arc.m_ptCenter.x, arc.m_ptCenter.y);
        const AcGeVector3d u = arc.m_vecStart.normal();
        const AcGeVector3d v = arc.m_vecNormal.normal().crossProduct(u);
        if (!center || !IsPaintable(arc.m_dRadius, 0.0) || !std::isfinite(arc.m_dSweep)) return;
        if (!IsPaintable(u.x, u.y) || !IsPaintable(v.x, v.y)) return;
        const CPlaneArc plane{*center, QPointF(u.x, -u.y), QPointF(v.x, -v.y), arc.m_dRadius,
                              std::clamp(arc.m_dSweep, -dFullTurn, dFullTurn)};
        QPainterPath path(plane.At(0.0));
        AppendArc(path, plane);
        Stroke(path);
    }

    void Draw(const CTextPrimitive& text) {
        const auto position = PaintablePoint(text.m_ptPosition.x, text.m_ptPosition.y);
        if (!position) return;
        if (auto run = LayOut(text, *position, m_fonts)) {
            run->m_color = m_stroke.m_color;
            m_canvas.DrawText(*run);
        }
    }

    void Draw(const CSplinePrimitive& spline) {
        QPainterPath path;
        for (const CBezier& bezier : spline.Pieces()) {
            std::array<QPointF, 4> arPoints;
            for (std::size_t i = 0; i < 4; ++i)
                if (const auto point = PaintablePoint(bezier.m_arPoints[i].x, bezier.m_arPoints[i].y))
                    arPoints[i] = *point;
                else
                    return;
            if (path.elementCount() == 0) path.moveTo(arPoints[0]);
            path.cubicTo(arPoints[1], arPoints[2], arPoints[3]);
        }
        Stroke(path);
    }

    const CPaintContext& m_context;
    CFonts& m_fonts;
    CCanvas& m_canvas;
    CStroke m_stroke;
};

} // namespace

void PaintDisplayList(const CDisplayList& list, const CPaintContext& context, CFonts& fonts,
                      CCanvas& canvas) {
    CPainter painter(context, fonts, canvas);
    for (const CPrimitive& primitive : list)
        painter.Paint(primitive);
}
