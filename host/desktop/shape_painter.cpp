#include "host/desktop/shape_painter.h"

#include <QtGui/QPainter>

#include <algorithm>

namespace {

constexpr double g_dLegible = 3.5;   // pixels of the em square
constexpr double g_dFinestRow = 4.0; // pixels of a row of dashes that can be told from a line

class CShapePainter {
public:
    CShapePainter(QPainter& painter, const QTransform& toScreen, const CShapeLook& look)
        : m_painter(painter)
        , m_toScreen(toScreen)
        , m_look(look) {}

    void Paint(const CScreenLine& line) {
        m_painter.setTransform(m_toScreen);
        m_painter.strokePath(line.m_path, PenOf(line.m_stroke));
    }

    void Paint(const CScreenFill& fill) {
        m_painter.setTransform(m_toScreen);
        m_painter.fillPath(fill.m_path, ColorOf(fill.m_color));
    }

    void Paint(const CScreenText& text) {
        const QColor color = ColorOf(text.m_color);
        const double dPixels = text.m_dHeight * m_look.m_frame.m_dPixels;
        if (dPixels < g_dLegible) return PaintBar(text, color, dPixels);
        const QTransform toScreen = text.m_toPicture * m_toScreen;
        for (const CScreenText::CPlaced& glyph : text.m_arGlyphs) {
            m_painter.setTransform(QTransform::fromTranslate(glyph.m_pt.x(), glyph.m_pt.y()) * toScreen);
            m_painter.fillPath(*glyph.m_pOutline, color);
        }
    }

private:
    QColor ColorOf(const QColor& color) const {
        return m_look.m_color ? *m_look.m_color : m_look.m_colors.OnScreen(color);
    }

    QPen PenOf(const CStroke& stroke) const {
        QPen pen(ColorOf(stroke.m_color), m_look.m_dLineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
        pen.setCosmetic(true);
        const double dPixels = m_look.m_frame.m_dPixels;
        double dRow = 0.0;
        QList<qreal> arLengths; // counted in pen widths
        for (const double dLength : stroke.m_dashes.m_arLengths) {
            dRow += dLength * dPixels;
            arLengths << dLength * dPixels / m_look.m_dLineWidth;
        }
        if (dRow < g_dFinestRow) return pen;
        pen.setDashPattern(arLengths);
        pen.setDashOffset(stroke.m_dashes.m_dPhase * dPixels / m_look.m_dLineWidth);
        return pen;
    }

    void PaintBar(const CScreenText& text, QColor color, double dPixels) {
        color.setAlphaF(0.4F * static_cast<float>(color.alphaF()));
        QPen pen(color, std::max(0.6, dPixels * 0.5), Qt::SolidLine, Qt::FlatCap);
        m_painter.setTransform(QTransform());
        m_painter.setPen(pen);
        m_painter.drawLine(m_toScreen.map(text.m_base));
    }

    QPainter& m_painter;
    const QTransform& m_toScreen;
    const CShapeLook& m_look;
};

} // namespace

void PaintShapes(QPainter& painter, const std::vector<CScreenShape>& arShapes, const QPointF& ptOrigin,
                 const QRectF& rect, const CShapeLook& look) {
    const QPointF origin = look.m_frame.ToScreen(ptOrigin);
    const double dPixels = look.m_frame.m_dPixels;
    const QTransform toScreen(dPixels, 0.0, 0.0, dPixels, origin.x(), origin.y());
    const double dWidth = look.m_dLineWidth;
    const QRectF seen = toScreen.inverted().mapRect(rect.adjusted(-dWidth, -dWidth, dWidth, dWidth));
    const QTransform before = painter.transform(); // of a widget's painter on a fine screen
    const QTransform toPainter = toScreen * before;
    CShapePainter shapePainter(painter, toPainter, look);
    for (const CScreenShape& shape : arShapes) {
        const QRectF& box = shape.m_box; // may be a line without width: QRectF::intersects would miss it
        if (box.left() > seen.right() || box.right() < seen.left() || box.top() > seen.bottom() ||
            box.bottom() < seen.top())
            continue;
        std::visit([&](const auto& what) { shapePainter.Paint(what); }, shape.m_what);
    }
    painter.setTransform(before);
}
