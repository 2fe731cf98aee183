#pragma once

#include "platform/acad/db_entity.h"

/// A two-dimensional polyline with a bulge and two widths at each vertex.
class AcDbPolyline : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AcDbPolyline)
    AcDbPolyline() = default;
    explicit AcDbPolyline(unsigned int nExpectedVertices) { m_arVertices.reserve(nExpectedVertices); }

    unsigned int numVerts() const { return static_cast<unsigned int>(m_arVertices.size()); }
    bool isClosed() const { return m_bClosed; }
    void setClosed(Adesk::Boolean closed);
    /// Inserts before index (index == numVerts() appends); a width of -1 is not set. eInvalidIndex.
    Acad::ErrorStatus addVertexAt(unsigned int index, const AcGePoint2d& point, double bulge = 0.0,
                                  double startWidth = -1.0, double endWidth = -1.0);
    Acad::ErrorStatus removeVertexAt(unsigned int index);
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint2d& point) const;
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint3d& point) const;
    Acad::ErrorStatus setPointAt(unsigned int index, const AcGePoint2d& point);
    Acad::ErrorStatus getBulgeAt(unsigned int index, double& bulge) const;
    Acad::ErrorStatus setBulgeAt(unsigned int index, double bulge);
    Acad::ErrorStatus getWidthsAt(unsigned int index, double& startWidth, double& endWidth) const;
    Acad::ErrorStatus setWidthsAt(unsigned int index, double startWidth, double endWidth);
    /// Takes all vertices away, leaving room for as many as there were: a temporary is refilled without
    /// allocating.
    void reset(Adesk::Boolean reuse, unsigned int numVerts);

    const std::vector<CPolylineVertex>& Vertices() const { return m_arVertices; }
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    /// Lines and arcs, without widths; eNotApplicable for fewer than two vertices.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    /// The vertices.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;

private:
    std::vector<CPolylineVertex> m_arVertices;
    bool m_bClosed = false;
};
