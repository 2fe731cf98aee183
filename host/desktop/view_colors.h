#pragma once

#include <QtGui/QColor>

/// What a view is painted with besides the entities' own colours.
struct CViewColors {
    QColor m_background;
    QColor m_ink;      ///< what is black on paper
    QColor m_selected; ///< entities selected
    QColor m_hover;    ///< the entity under the cursor
    QColor m_dragged;  ///< what is dragged
    QColor m_grip, m_hotGrip;
    QColor m_window, m_crossing; ///< selection from left to right, and from right to left

    /// The colour on this background of what has that colour on paper.
    QColor OnScreen(const QColor& paper) const { return paper == QColor(Qt::black) ? m_ink : paper; }
};

inline CViewColors DarkColors() {
    return {QColor(30, 36, 44),   QColor(236, 238, 240), QColor(90, 170, 255),
            QColor(255, 176, 32), QColor(120, 220, 255), QColor(0, 120, 255),
            QColor(230, 40, 40),  QColor(64, 120, 255),  QColor(64, 200, 96)};
}

inline CViewColors LightColors() {
    return {QColor(255, 255, 255), QColor(0, 0, 0),     QColor(0, 96, 224),
            QColor(224, 112, 0),   QColor(0, 128, 192), QColor(0, 96, 224),
            QColor(208, 16, 16),   QColor(48, 96, 224), QColor(32, 144, 64)};
}
