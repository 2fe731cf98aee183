#pragma once

#include <QtCore/QRect>
#include <QtGui/QFontMetrics>

#include "platform/mfc/dialog_template.h"

/// The units in which templates are laid out: a quarter of a letter's mean width, an eighth of its height.
/// They grow with the font, and never are so small that a field of one line has no room for its frame.
class CDialogUnits {
public:
    /// nFieldHeight is the height in pixels that a field of one line needs.
    CDialogUnits(const QFontMetrics& metrics, int nFieldHeight);

    int Width(int nUnits) const;
    int Height(int nUnits) const;
    QRect Place(const CControlPlace& place) const;

private:
    double m_dLetterWidth, m_dLetterHeight; ///< pixels
};
