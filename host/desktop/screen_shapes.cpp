#include "host/desktop/screen_shapes.h"

const QPainterPath& CGlyphOutlines::Of(const CGlyph& glyph) {
    const auto [found, bNew] = m_mapOutlines.try_emplace({glyph.m_pFont, glyph.m_nIndex});
    if (bNew) {
        found->second = glyph.m_pFont->pathForGlyph(glyph.m_nIndex);
        found->second.setFillRule(Qt::WindingFill);
    }
    return found->second;
}

void CShapeRecorder::StrokePath(const QPainterPath& path, const CStroke& stroke) {
    m_arShapes.push_back({CScreenLine{path, stroke}, path.controlPointRect()});
}

void CShapeRecorder::FillPath(const QPainterPath& path, const QColor& color) {
    CScreenFill fill{path, color};
    fill.m_path.setFillRule(Qt::WindingFill);
    m_arShapes.push_back({std::move(fill), path.controlPointRect()});
}

void CShapeRecorder::DrawText(const CTextRun& run) {
    const double dScale = run.m_dEm / CFonts::PixelSize;
    CScreenText text;
    text.m_toPicture = QTransform::fromScale(dScale, dScale) * run.m_toPage;
    text.m_dHeight = run.m_dEm;
    text.m_color = run.m_color;
    QRectF box(0.0, -run.m_dEm / dScale, run.m_dWidth / dScale, run.m_dEm / dScale);
    for (const CTextRun::CPlaced& placed : run.m_arGlyphs) {
        const QPainterPath& outline = m_outlines.Of(placed.m_glyph);
        const QPointF point(placed.m_dX / dScale, 0.0);
        if (!outline.isEmpty()) text.m_arGlyphs.push_back({&outline, point});
        box |= outline.controlPointRect().translated(point);
    }
    const double dMiddle = -0.35 * run.m_dEm; // about half of the capitals
    text.m_base = run.m_toPage.map(QLineF(0.0, dMiddle, run.m_dWidth, dMiddle));
    const QRectF boxOnPicture = text.m_toPicture.mapRect(box);
    m_arShapes.push_back({std::move(text), boxOnPicture});
}
