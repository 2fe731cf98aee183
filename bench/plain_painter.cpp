#include "bench/plain_painter.h"

#include "platform/windows/code_page.h"

#include <QtCore/QBuffer>
#include <QtGui/QFont>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPdfWriter>

#include <map>
#include <numbers>

namespace {
constexpr int g_nResolution = 7200;
constexpr double g_dMmPerInch = 25.4;
constexpr double g_dThin = 0.18;
constexpr double g_dEmPerCapital = 1.4;
constexpr int g_nFontPixels = 100;

/// Paints in millimetres, y up as the drawing has it.
class CPlainPainter {
public:
    CPlainPainter(QPainter& painter, const CPageBox& box)
        : m_painter(painter)
        , m_box(box) {}

    void operator()(const CPolylinePrimitive& polyline) {
        QPolygonF points;
        for (const AcGePoint3d& point : polyline.m_arPoints)
            points << At(point.x, point.y);
        m_painter.drawPolyline(points);
    }
    void operator()(const CPlinePrimitive& pline) {
        QPainterPath path;
        for (std::size_t i = 0; i < pline.m_arVertices.size(); ++i) {
            const CPolylineVertex& vertex = pline.m_arVertices[i];
            const QPointF point = At(vertex.m_pt.x, vertex.m_pt.y);
            if (i == 0)
                path.moveTo(point);
            else if (pline.m_arVertices[i - 1].m_dBulge != 0.0)
                HalfCircleTo(path, point); // the only bulge that charts have
            else
                path.lineTo(point);
        }
        const double dWidth = pline.m_arVertices.front().m_dStartWidth;
        m_painter.strokePath(path, QPen(m_color, dWidth > 0.0 ? dWidth : g_dThin));
    }
    void operator()(const CArcPrimitive& arc) {
        const QPointF center = At(arc.m_ptCenter.x, arc.m_ptCenter.y);
        const QPointF reach(arc.m_dRadius, arc.m_dRadius);
        m_painter.drawArc(QRectF(center - reach, center + reach), 0,
                          static_cast<int>(arc.m_dSweep * 180.0 / std::numbers::pi * 16.0));
    }
    void operator()(const CTextPrimitive& text) {
        m_painter.save();
        m_painter.translate(At(text.m_ptPosition.x, text.m_ptPosition.y));
        if (text.m_vecDirection.y > 0.5) m_painter.rotate(-90.0);
        const double dScale = text.m_dHeight * g_dEmPerCapital / g_nFontPixels;
        m_painter.scale(dScale * text.m_dXScale, dScale);
        m_painter.setFont(FontOf(text.m_strFont));
        m_painter.drawText(QPointF(), QString::fromStdWString(WideFromGbk(text.m_strText)));
        m_painter.restore();
    }
    void operator()(const CSplinePrimitive& spline) {
        QPainterPath path;
        for (const CBezier& bezier : spline.Pieces()) {
            const auto at = [&](std::size_t i) { return At(bezier.m_arPoints[i].x, bezier.m_arPoints[i].y); };
            if (path.elementCount() == 0) path.moveTo(at(0));
            path.cubicTo(at(1), at(2), at(3));
        }
        m_painter.drawPath(path);
    }

    void Paint(const CPrimitive& primitive) {
        m_color = primitive.m_nColor == 1 ? Qt::red : primitive.m_nColor == 3 ? Qt::green : Qt::black;
        m_painter.setPen(QPen(m_color, g_dThin, primitive.m_nColor == 2 ? Qt::DashLine : Qt::SolidLine));
        std::visit(*this, primitive.m_shape);
    }

private:
    QPointF At(double x, double y) const { return {x - m_box.m_dLeft, m_box.m_dTop - y}; }
    static void HalfCircleTo(QPainterPath& path, const QPointF& to) {
        const QLineF chord(path.currentPosition(), to);
        const double dRadius = chord.length() / 2.0;
        const QPointF reach(dRadius, dRadius);
        path.arcTo(QRectF(chord.center() - reach, chord.center() + reach), chord.angle() + 180.0, 180.0);
    }
    static const QFont& FontOf(const std::string& strName) {
        static std::map<std::string, QFont> s_mapFonts;
        auto found = s_mapFonts.find(strName);
        if (found == s_mapFonts.end()) {
            QFont font(QString::fromStdWString(WideFromGbk(strName)));
            font.setPixelSize(g_nFontPixels);
            found = s_mapFonts.emplace(strName, font).first;
        }
        return found->second;
    }

    QPainter& m_painter;
    const CPageBox& m_box;
    QColor m_color;
};
} // namespace

QByteArray PaintPlainly(const std::vector<CPlotPage>& arPages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(g_nResolution);
    QPainter painter;
    for (const CPlotPage& page : arPages) {
        const QPageSize paper(QSizeF(page.m_box.Width(), page.m_box.Height()), QPageSize::Millimeter);
        writer.setPageLayout(QPageLayout(paper, QPageLayout::Portrait, QMarginsF()));
        if (painter.isActive())
            writer.newPage();
        else
            painter.begin(&writer);
        painter.resetTransform();
        painter.scale(g_nResolution / g_dMmPerInch, g_nResolution / g_dMmPerInch);
        CPlainPainter plain(painter, page.m_box);
        for (const CPlotPicture& picture : page.m_arPictures)
            for (const CPrimitive& primitive : *picture.m_pList)
                plain.Paint(primitive);
    }
    painter.end();
    return bytes;
}
