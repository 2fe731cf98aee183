#pragma once

#include "drawing/picture_sink.h"
#include "platform/acad/db_polyline.h"

/// The world form: sends primitives to a drawing context and keeps nothing.
class CWorldSink final : public CPictureSink {
public:
    /// nColor: the chart's colour index, restored after every stroke of another colour.
    CWorldSink(AcGiWorldDraw* pMode, Adesk::Int16 nPolylineMode, Adesk::UInt16 nColor)
        : m_pMode(pMode)
        , m_nPolylineMode(nPolylineMode)
        , m_nColor(nColor)
        , m_polyline(2) {}

    void Line(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override;
    void LineInChartColour(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override;
    void DashedLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override;
    void WideLine(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) override;
    void Arrow(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo, double dWidth) override;
    void Text(const AcGePoint3d& ptPosition, const CString& strText, CTextDirection direction) override;
    void SolidCurve(const AcGePoint3dArray& points) override;
    void DashedCurve(const AcGePoint3dArray& points) override;
    void Dots(const AcGePoint3dArray& points) override;
    void HalfCircle(const AcGePoint3d& ptCenter, double dRadius) override;
    void DashedHalfCircle(const AcGePoint3d& ptCenter, double dRadius) override;

private:
    void TwoVertices(const CPolylineVertex& from, const CPolylineVertex& to);

    AcGiWorldDraw* m_pMode;
    Adesk::Int16 m_nPolylineMode;
    Adesk::UInt16 m_nColor;
    AcDbPolyline m_polyline; // one temporary for all two-vertex strokes
};
