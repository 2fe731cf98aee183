#pragma once

#include "platform/acad/db_entity.h"

namespace AcDb {
enum Intersect { kOnBothOperands = 0, kExtendThis = 1, kExtendArg = 2, kExtendBoth = 3 };
}

/// A smooth curve through fit points, kept as they were given.
class AcDbSpline : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AcDbSpline)
    AcDbSpline() = default;
    explicit AcDbSpline(const AcGePoint3dArray& fitPoints, int order = 4, double fitTolerance = 0.0);

    const std::vector<AcGePoint3d>& FitPoints() const { return m_arFitPoints; }
    int numFitPoints() const { return static_cast<int>(m_arFitPoints.size()); }
    int Order() const { return m_nOrder; }
    double FitTolerance() const { return m_dFitTolerance; }

    /// Appends the points where the two curves really cross, in order along this one. eDegenerateGeometry
    /// when a curve has fewer than two points; no crossing is eOk with nothing appended.
    Acad::ErrorStatus intersectWith(const AcDbSpline* pOther, AcDb::Intersect mode, AcGePoint3dArray& points,
                                    Adesk::GsMarker thisMarker = 0, Adesk::GsMarker otherMarker = 0) const;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;

private:
    std::vector<AcGePoint3d> m_arFitPoints;
    int m_nOrder = 4;
    double m_dFitTolerance = 0.0;
};
