#pragma once

#include "platform/acad/db_entity.h"

/// An arc of a circle in a plane parallel to the drawing's, counter-clockwise from its start to its end
/// angle.
class AcDbArc : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AcDbArc)
    AcDbArc() = default;
    /// Angles in radians from the x axis.
    AcDbArc(const AcGePoint3d& center, double radius, double startAngle, double endAngle);

    AcGePoint3d center() const { return m_ptCenter; }
    double radius() const { return m_dRadius; }
    double startAngle() const { return m_dStartAngle; }
    double endAngle() const { return m_dEndAngle; }
    AcGeVector3d normal() const { return AcGeVector3d::kZAxis; }
    Acad::ErrorStatus setCenter(const AcGePoint3d& center);
    // eInvalidInput for a number that is not finite, and a radius that is not above 0.
    Acad::ErrorStatus setRadius(double radius);
    Acad::ErrorStatus setStartAngle(double radians);
    Acad::ErrorStatus setEndAngle(double radians);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    /// Centre, start, end and middle: the centre moves the arc, start and end turn towards their new place,
    /// the middle sets the radius.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;

private:
    double Sweep() const; ///< radians, above 0 and at most a whole turn
    AcGePoint3d At(double radians) const;
    void MoveGrip(int index, const AcGeVector3d& offset);

    AcGePoint3d m_ptCenter;
    double m_dRadius = 1.0, m_dStartAngle = 0.0, m_dEndAngle = 0.0;
};
