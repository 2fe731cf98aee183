#include "host/plot/painter_canvas.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QPen>

CPainterCanvas::CPainterCanvas(QPainter& painter)
    : m_painter(painter)
    , m_bKeepsText(painter.paintEngine()->type() == QPaintEngine::Pdf) {
    m_painter.setRenderHint(QPainter::Antialiasing);
}

void CPainterCanvas::StrokePath(const QPainterPath& path, const CStroke& stroke) {
    QPen pen(stroke.m_color, stroke.m_dWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (!stroke.m_dashes.m_arLengths.empty()) { // Qt counts dashes in pen widths
        QList<qreal> arLengths;
        for (const double dLength : stroke.m_dashes.m_arLengths)
            arLengths << dLength / stroke.m_dWidth;
        pen.setDashPattern(arLengths);
        pen.setDashOffset(stroke.m_dashes.m_dPhase / stroke.m_dWidth);
    }
    m_painter.strokePath(path, pen);
}

void CPainterCanvas::FillPath(const QPainterPath& path, const QColor& color) {
    m_painter.fillPath(path, color);
}

void CPainterCanvas::DrawText(const CTextRun& run) {
    m_painter.save();
    m_painter.setTransform(run.m_toPage, true);
    const double dScale = run.m_dEm / CFonts::PixelSize;
    m_painter.scale(dScale, dScale);
    if (m_bKeepsText)
        DrawAsText(run);
    else
        DrawAsOutlines(run);
    m_painter.restore();
}

/// One glyph run for each stretch of characters of one font. Readers take characters that overlap by a fifth
/// of their size for separate words, and tracking of 80 percent sits right on that edge: a ten-thousandth of
/// the size more keeps words together.
void CPainterCanvas::DrawAsText(const CTextRun& run) {
    m_painter.setPen(run.m_color);
    constexpr double dApart = CFonts::PixelSize * 1e-4;
    const double dPixel = CFonts::PixelSize / run.m_dEm;
    for (std::size_t i = 0; i < run.m_arGlyphs.size();) {
        const QRawFont* pFont = run.m_arGlyphs[i].m_glyph.m_pFont;
        QList<quint32> arIndexes;
        QList<QPointF> arPositions;
        for (; i < run.m_arGlyphs.size() && run.m_arGlyphs[i].m_glyph.m_pFont == pFont; ++i) {
            arIndexes << run.m_arGlyphs[i].m_glyph.m_nIndex;
            arPositions << QPointF(run.m_arGlyphs[i].m_dX * dPixel + static_cast<double>(i) * dApart, 0.0);
        }
        QGlyphRun glyphs;
        glyphs.setRawFont(*pFont);
        glyphs.setGlyphIndexes(arIndexes);
        glyphs.setPositions(arPositions);
        m_painter.drawGlyphRun(QPointF(), glyphs);
    }
}

void CPainterCanvas::DrawAsOutlines(const CTextRun& run) {
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    const double dPixel = CFonts::PixelSize / run.m_dEm;
    for (const CTextRun::CPlaced& placed : run.m_arGlyphs)
        outlines.addPath(placed.m_glyph.m_pFont->pathForGlyph(placed.m_glyph.m_nIndex)
                             .translated(placed.m_dX * dPixel, 0.0));
    m_painter.fillPath(outlines, run.m_color);
}
