#pragma once

#include "drawing/picture_sink.h"
#include "platform/acad/db_entity.h"

/// The explode form: makes entities and hands them to the array's owner.
class CExplodeSink final : public CPictureSink {
public:
    /// nColor: the chart's colour index, which solid curves have. idTextStyle: text style of the texts.
    CExplodeSink(AcDbVoidPtrArray& entitySet, Adesk::UInt16 nColor, AcDbObjectId idTextStyle)
        : m_entitySet(entitySet)
        , m_nColor(nColor)
        , m_idTextStyle(idTextStyle) {}

    void Line(const AcGePoint3d& ptFrom, const AcGePoint3d& ptTo) override;
    /// Without a colour of its own.
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
    /// Dashes what was appended last.
    void DashLast();

    AcDbVoidPtrArray& m_entitySet;
    Adesk::UInt16 m_nColor;
    AcDbObjectId m_idTextStyle;
};
