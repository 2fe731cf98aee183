#pragma once

#include "host/plot/dash_pattern.h"
#include "host/plot/fonts.h"

#include <QtGui/QColor>
#include <QtGui/QPainterPath>
#include <QtGui/QTransform>

#include <vector>

/// A line's look. Millimetres.
struct CStroke {
    QColor m_color;
    double m_dWidth = THIN_LINE;
    CDashes m_dashes;
};

/// A text, laid out. It has a space of its own: millimetres, x along the base line, y down, the first
/// character at the origin.
struct CTextRun {
    struct CPlaced {
        CGlyph m_glyph;
        double m_dX = 0.0;
    };
    QString m_strText; ///< without control characters
    QStringList m_arFamilies;
    double m_dEm = 0.0;    ///< size of the em square
    double m_dWidth = 0.0; ///< with tracking
    std::vector<CPlaced> m_arGlyphs;
    QTransform m_toPage;
    QColor m_color;
};

/// What is painted on: a page in millimetres, y down from its upper left corner.
class CCanvas {
public:
    virtual ~CCanvas() = default;
    virtual void StrokePath(const QPainterPath& path, const CStroke& stroke) = 0;
    /// Fills by the nonzero winding rule.
    virtual void FillPath(const QPainterPath& path, const QColor& color) = 0;
    virtual void DrawText(const CTextRun& run) = 0;
};
