#pragma once
// Where a picture element goes. An element says once what is drawn; a sink makes of it what its form of
// output needs.

#include "platform/acad/geometry.h"
#include "platform/mfc/string.h"

enum class CTextDirection { Horizontal = 0, Vertical = 1 };

/// Strokes of the chart and the frame. Points are drawing units; "dashed" is line type "Dashed2" in colour
/// index 2; everything else is in the colour and line type of the entity unless said.
class CPictureSink {
public:
    virtual ~CPictureSink() = default;

    /// A two-vertex polyline without widths.
    virtual void Line(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) = 0;
    /// The same, set to the chart's colour index first.
    virtual void LineInChartColour(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) = 0;
    virtual void DashedLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) = 0;
    /// The same width all along, which may be 0.
    virtual void WideLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) = 0;
    /// A polyline that tapers from full width to a point.
    virtual void Arrow(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) = 0;
    /// A text in the shared text style, at its left baseline.
    virtual void Text(const AcGePoint3d& ptPosition, const CString& strText, CTextDirection direction) = 0;

    virtual void SolidCurve(const AcGePoint3dArray& points) = 0;
    virtual void DashedCurve(const AcGePoint3dArray& points) = 0;
    /// A full dot, 1.0 across, in colour index 1 at each point.
    virtual void Dots(const AcGePoint3dArray& points) = 0;

    /// The upper half of a circle.
    virtual void HalfCircle(const AcGePoint3d& ptCenter, double dRadius) = 0;
    virtual void DashedHalfCircle(const AcGePoint3d& ptCenter, double dRadius) = 0;
};
