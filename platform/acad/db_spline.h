#pragma once

#include "platform/acad/db_entity.h"

namespace AcDb {
enum Intersect { kOnBothOperands = 0, kExtendThis = 1, kExtendArg = 2, kExtendBoth = 3 };
}

using AcGeDoubleArray = AcArray<double>;

/// A smooth curve: through fit points, kept as they were given, or by control points and knots.
class AcDbSpline : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AcDbSpline)
    AcDbSpline() = default;
    explicit AcDbSpline(const AcGePoint3dArray& fitPoints, int order = 4, double fitTolerance = 0.0);
    /// By control points: as many knots as these and degree plus one, never falling; weights, one for each
    /// and above 0, if the curve is rational. Other data make a spline that shows nothing.
    AcDbSpline(int degree, Adesk::Boolean rational, Adesk::Boolean closed, Adesk::Boolean periodic,
               const AcGePoint3dArray& controlPoints, const AcGeDoubleArray& knots,
               const AcGeDoubleArray& weights);

    int degree() const { return m_nOrder - 1; }
    bool isRational() const { return !m_nurbs.m_arWeights.empty(); }
    bool isClosed() const { return m_bClosed; }     ///< as it was told: its ends are joined
    bool isPeriodic() const { return m_bPeriodic; } ///< as it was told: smoothly so
    bool hasFitData() const { return !m_arFitPoints.empty(); }
    /// The curve by control points; of a spline through fit points those that follow from them, none where
    /// they make no curve.
    CNurbs Nurbs() const;
    Acad::ErrorStatus getNurbsData(int& degree, Adesk::Boolean& rational, Adesk::Boolean& closed,
                                   Adesk::Boolean& periodic, AcGePoint3dArray& controlPoints,
                                   AcGeDoubleArray& knots, AcGeDoubleArray& weights, double& controlPtTol,
                                   double& knotTol) const;
    /// eNotApplicable for a spline by control points. The ends have no tangents of their own.
    Acad::ErrorStatus getFitData(AcGePoint3dArray& fitPoints, int& degree, double& fitTolerance,
                                 Adesk::Boolean& tangentsExist, AcGeVector3d& startTangent,
                                 AcGeVector3d& endTangent) const;
    CSplinePrimitive Primitive() const;

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
    /// The fit points, or the control points where there are none.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;

private:
    std::vector<AcGePoint3d> m_arFitPoints;
    int m_nOrder = 4;
    double m_dFitTolerance = 0.0;
    CNurbs m_nurbs; ///< without fit points; else empty
    bool m_bClosed = false, m_bPeriodic = false;
};
