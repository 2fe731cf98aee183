#pragma once

#include "platform/acad/adesk.h"

#include <string>

/// How a text of the world form is drawn. Sizes are drawing units, angles radians.
class AcGiTextStyle {
public:
    double textSize() const { return m_dTextSize; }
    double xScale() const { return m_dXScale; }
    double obliquingAngle() const { return m_dObliquingAngle; }
    double trackingPercent() const { return m_dTrackingPercent; }
    const ACHAR* fileName() const { return m_strFileName.c_str(); }
    const ACHAR* bigFontFileName() const { return m_strBigFontFileName.c_str(); }

    void setTextSize(double size) { m_dTextSize = size; }
    void setXScale(double scale) { m_dXScale = scale; }
    void setObliquingAngle(double angle) { m_dObliquingAngle = angle; }
    /// Advance widths in percent when the text is painted; its extents don't know it.
    void setTrackingPercent(double percent) { m_dTrackingPercent = percent; }
    void setFileName(const ACHAR* fileName) { m_strFileName = fileName; }
    void setBigFontFileName(const ACHAR* fileName) { m_strBigFontFileName = fileName; }

private:
    double m_dTextSize = 1.0, m_dXScale = 1.0, m_dObliquingAngle = 0.0, m_dTrackingPercent = 100.0;
    std::wstring m_strFileName, m_strBigFontFileName;
};
