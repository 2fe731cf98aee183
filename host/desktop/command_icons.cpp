#include "host/desktop/command_icons.h"

#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <sstream>

namespace {

constexpr double g_dGrid = 24.0;   // strokes are drawn on a square of this size
constexpr double g_dStroke = 1.75; // the width of the pen there

/// Strokes: `M x y` moves the pen, `L x y` draws a line, `A x y w h from sweep` an arc of that box (degrees,
/// counter-clockwise from the right), `Z` closes.
struct CStrokedIcon {
    std::string_view m_strName;
    const char* m_pStrokes;
};

constexpr std::array g_arIcons = {
    CStrokedIcon{"New", "M 6 3 L 14 3 L 19 8 L 19 21 L 6 21 Z M 14 3 L 14 8 L 19 8"},
    CStrokedIcon{"Open", "M 3 19 L 3 5 L 9 5 L 11 8 L 19 8 L 19 11 M 3 19 L 6.5 11 L 22 11 L 18.5 19 Z"},
    CStrokedIcon{"Save", "M 4 4 L 17 4 L 20 7 L 20 20 L 4 20 Z M 8 4 L 8 9 L 15 9 L 15 4 "
                         "M 7 20 L 7 13 L 17 13 L 17 20"},
    CStrokedIcon{"Print", "M 7 9 L 7 3 L 17 3 L 17 9 M 7 17 L 3 17 L 3 9 L 21 9 L 21 17 L 17 17 "
                          "M 7 14 L 17 14 L 17 21 L 7 21 Z"},
    CStrokedIcon{"Undo", "M 8 4 L 4 8 L 8 12 M 4 8 L 14 8 A 8 8 12 11 90 -180 L 9 19"},
    CStrokedIcon{"Redo", "M 16 4 L 20 8 L 16 12 M 20 8 L 10 8 A 4 8 12 11 90 180 L 15 19"},
    CStrokedIcon{"Erase", "M 3 15 L 13 5 L 20 12 L 12 20 L 8 20 Z M 8 10 L 15 17 M 12 20 L 21 20"},
    CStrokedIcon{"Move",
                 "M 12 3 L 12 21 M 3 12 L 21 12 M 9.5 5.5 L 12 3 L 14.5 5.5 M 9.5 18.5 L 12 21 L 14.5 18.5 "
                 "M 5.5 9.5 L 3 12 L 5.5 14.5 M 18.5 9.5 L 21 12 L 18.5 14.5"},
    CStrokedIcon{"Copy", "M 9 8 L 20 8 L 20 21 L 9 21 Z M 15 8 L 15 3 L 4 3 L 4 16 L 9 16"},
    CStrokedIcon{"Extents", "M 3 8 L 3 3 L 8 3 M 16 3 L 21 3 L 21 8 M 21 16 L 21 21 L 16 21 "
                            "M 8 21 L 3 21 L 3 16 M 8 8 L 16 8 L 16 16 L 8 16 Z"},
    CStrokedIcon{"Line", "M 4 20 L 20 4"},
    CStrokedIcon{"Polyline", "M 3 19 L 9 7 L 15 16 L 21 5"},
    CStrokedIcon{"Arc", "M 20 20 A -12 4 32 32 0 90"},
    CStrokedIcon{"Text", "M 5 7 L 5 4 L 19 4 L 19 7 M 12 4 L 12 20 M 9 20 L 15 20"},
};

QPainterPath PathOf(const char* szStrokes) {
    QPainterPath path;
    std::istringstream strokes(szStrokes);
    double dX = 0.0, dY = 0.0;
    for (char cStroke = 0; strokes >> cStroke;) {
        if (cStroke == 'Z') {
            path.closeSubpath();
            continue;
        }
        strokes >> dX >> dY;
        if (cStroke == 'M') path.moveTo(dX, dY);
        if (cStroke == 'L') path.lineTo(dX, dY);
        if (cStroke != 'A') continue;
        double dWidth = 0.0, dHeight = 0.0, dFrom = 0.0, dSweep = 0.0;
        strokes >> dWidth >> dHeight >> dFrom >> dSweep;
        path.arcTo(dX, dY, dWidth, dHeight, dFrom, dSweep);
    }
    return path;
}

class CStrokedEngine final : public QIconEngine {
public:
    explicit CStrokedEngine(const QPainterPath& path)
        : m_path(path) {}

    void paint(QPainter* pPainter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        pPainter->save();
        pPainter->setRenderHint(QPainter::Antialiasing);
        pPainter->translate(rect.topLeft());
        pPainter->scale(rect.width() / g_dGrid, rect.height() / g_dGrid);
        pPainter->setPen(QPen(QApplication::palette().color(group, QPalette::ButtonText), g_dStroke,
                              Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pPainter->drawPath(m_path);
        pPainter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new CStrokedEngine(m_path); }

private:
    QPainterPath m_path;
};

} // namespace

QIcon CommandIcon(std::string_view strName) {
    const auto* const pIcon = std::find_if(g_arIcons.begin(), g_arIcons.end(), [&](const CStrokedIcon& icon) {
        return icon.m_strName == strName;
    });
    return pIcon == g_arIcons.end() ? QIcon() : QIcon(new CStrokedEngine(PathOf(pIcon->m_pStrokes)));
}
