#pragma once
// What an entity drew last, laid out for the screen: millimetres with y down from an origin of the picture's
// own, so that far coordinates keep their digits.

#include "host/plot/canvas.h"

#include <map>
#include <utility>
#include <variant>
#include <vector>

/// The outlines of glyphs at CFonts::PixelSize, made once each.
class CGlyphOutlines {
public:
    const QPainterPath& Of(const CGlyph& glyph); ///< valid as long as this object
private:
    std::map<std::pair<const QRawFont*, quint32>, QPainterPath> m_mapOutlines;
};

struct CScreenLine {
    QPainterPath m_path;
    CStroke m_stroke;
};

struct CScreenFill {
    QPainterPath m_path;
    QColor m_color;
};

struct CScreenText {
    struct CPlaced {
        const QPainterPath* m_pOutline;
        QPointF m_pt; ///< in pixels of the outline
    };
    std::vector<CPlaced> m_arGlyphs;
    QTransform m_toPicture; ///< from the outlines' pixels
    double m_dHeight = 0.0; ///< of the em square
    QLineF m_base;          ///< from its start to its end, at half of the height
    QColor m_color;
};

struct CScreenShape {
    std::variant<CScreenLine, CScreenFill, CScreenText> m_what;
    QRectF m_box; ///< holds all of it
};

/// Keeps what is painted on it.
class CShapeRecorder final : public CCanvas {
public:
    explicit CShapeRecorder(CGlyphOutlines& outlines)
        : m_outlines(outlines) {}

    void StrokePath(const QPainterPath& path, const CStroke& stroke) override;
    void FillPath(const QPainterPath& path, const QColor& color) override;
    void DrawText(const CTextRun& run) override;
    std::vector<CScreenShape> Take() { return std::move(m_arShapes); }

private:
    CGlyphOutlines& m_outlines;
    std::vector<CScreenShape> m_arShapes;
};
