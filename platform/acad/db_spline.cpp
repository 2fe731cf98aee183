#include "platform/acad/db_spline.h"

#include "platform/acad/db_filer.h"
#include "platform/acad/rx_class.h"
#include "platform/acad/spline_crossings.h"

ACRX_DEFINE_MEMBERS(AcDbSpline, AcDbEntity, L"SPLINE")

namespace {

void WriteNurbs(AcDbDwgFiler* pFiler, const CNurbs& nurbs) {
    pFiler->writeInt32(static_cast<Adesk::Int32>(nurbs.m_arControlPoints.size()));
    for (const AcGePoint3d& point : nurbs.m_arControlPoints)
        pFiler->writePoint3d(point);
    for (const std::vector<double>* pValues : {&nurbs.m_arKnots, &nurbs.m_arWeights}) {
        pFiler->writeInt32(static_cast<Adesk::Int32>(pValues->size()));
        for (const double value : *pValues)
            pFiler->writeDouble(value);
    }
}

/// The list ends with the first value that the filer could not give.
template <class T>
void ReadList(AcDbDwgFiler* pFiler, Acad::ErrorStatus (AcDbDwgFiler::*pRead)(T*), std::vector<T>& arValues) {
    Adesk::Int32 nValues = 0;
    pFiler->readInt32(&nValues);
    for (Adesk::Int32 i = 0; i < nValues; ++i) {
        T value;
        if ((pFiler->*pRead)(&value) != Acad::eOk) break;
        arValues.push_back(value);
    }
}

CNurbs ReadNurbs(AcDbDwgFiler* pFiler, int nDegree) {
    CNurbs nurbs;
    nurbs.m_nDegree = nDegree;
    ReadList(pFiler, &AcDbDwgFiler::readPoint3d, nurbs.m_arControlPoints);
    ReadList(pFiler, &AcDbDwgFiler::readDouble, nurbs.m_arKnots);
    ReadList(pFiler, &AcDbDwgFiler::readDouble, nurbs.m_arWeights);
    return nurbs;
}

} // namespace

AcDbSpline::AcDbSpline(const AcGePoint3dArray& fitPoints, int order, double fitTolerance)
    : m_arFitPoints(fitPoints.begin(), fitPoints.end())
    , m_nOrder(order)
    , m_dFitTolerance(fitTolerance) {}

AcDbSpline::AcDbSpline(int degree, Adesk::Boolean rational, Adesk::Boolean closed, Adesk::Boolean periodic,
                       const AcGePoint3dArray& controlPoints, const AcGeDoubleArray& knots,
                       const AcGeDoubleArray& weights)
    : m_nOrder(degree + 1)
    , m_bClosed(closed != Adesk::kFalse)
    , m_bPeriodic(periodic != Adesk::kFalse) {
    m_nurbs.m_nDegree = degree;
    m_nurbs.m_arControlPoints.assign(controlPoints.begin(), controlPoints.end());
    m_nurbs.m_arKnots.assign(knots.begin(), knots.end());
    if (rational) m_nurbs.m_arWeights.assign(weights.begin(), weights.end());
}

CNurbs AcDbSpline::Nurbs() const {
    assertReadEnabled();
    return hasFitData() ? NurbsThrough(m_arFitPoints) : m_nurbs;
}

Acad::ErrorStatus AcDbSpline::getNurbsData(int& degree, Adesk::Boolean& rational, Adesk::Boolean& closed,
                                           Adesk::Boolean& periodic, AcGePoint3dArray& controlPoints,
                                           AcGeDoubleArray& knots, AcGeDoubleArray& weights,
                                           double& controlPtTol, double& knotTol) const {
    const CNurbs nurbs = Nurbs();
    degree = nurbs.m_nDegree;
    rational = isRational();
    closed = m_bClosed;
    periodic = m_bPeriodic;
    controlPoints.removeAll();
    for (const AcGePoint3d& point : nurbs.m_arControlPoints)
        controlPoints.append(point);
    const auto copy = [](const std::vector<double>& from, AcGeDoubleArray& to) {
        to.removeAll();
        for (const double value : from)
            to.append(value);
    };
    copy(nurbs.m_arKnots, knots);
    copy(nurbs.m_arWeights, weights);
    controlPtTol = knotTol = 0.0;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::getFitData(AcGePoint3dArray& fitPoints, int& degree, double& fitTolerance,
                                         Adesk::Boolean& tangentsExist, AcGeVector3d& startTangent,
                                         AcGeVector3d& endTangent) const {
    assertReadEnabled();
    if (!hasFitData()) return Acad::eNotApplicable;
    fitPoints.removeAll();
    for (const AcGePoint3d& point : m_arFitPoints)
        fitPoints.append(point);
    degree = this->degree();
    fitTolerance = m_dFitTolerance;
    tangentsExist = Adesk::kFalse;
    startTangent = endTangent = AcGeVector3d::kIdentity;
    return Acad::eOk;
}

CSplinePrimitive AcDbSpline::Primitive() const {
    return {m_arFitPoints, m_nOrder, m_dFitTolerance, m_nurbs};
}

Acad::ErrorStatus AcDbSpline::intersectWith(const AcDbSpline* pOther, AcDb::Intersect mode,
                                            AcGePoint3dArray& points, Adesk::GsMarker,
                                            Adesk::GsMarker) const {
    assertReadEnabled();
    if (!pOther) return Acad::eNullObjectPointer;
    pOther->assertReadEnabled();
    if (mode != AcDb::kOnBothOperands) return Acad::eNotImplementedYet;
    const std::vector<CBezier> mine = Primitive().Pieces(), other = pOther->Primitive().Pieces();
    if (mine.empty() || other.empty()) return Acad::eDegenerateGeometry;
    for (const AcGePoint2d& crossing : Crossings(mine, other))
        points.append({crossing.x, crossing.y, 0.0});
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeInt32(m_nOrder);
    pFiler->writeDouble(m_dFitTolerance);
    pFiler->writeInt32(numFitPoints());
    for (const AcGePoint3d& point : m_arFitPoints)
        pFiler->writePoint3d(point);
    pFiler->writeBoolean(m_bClosed);
    pFiler->writeBoolean(m_bPeriodic);
    WriteNurbs(pFiler, m_nurbs);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbSpline::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readInt32(&m_nOrder);
    pFiler->readDouble(&m_dFitTolerance);
    m_arFitPoints.clear();
    ReadList(pFiler, &AcDbDwgFiler::readPoint3d, m_arFitPoints);
    Adesk::Boolean bClosed = Adesk::kFalse, bPeriodic = Adesk::kFalse;
    pFiler->readBoolean(&bClosed);
    pFiler->readBoolean(&bPeriodic);
    m_bClosed = bClosed != Adesk::kFalse;
    m_bPeriodic = bPeriodic != Adesk::kFalse;
    m_nurbs = ReadNurbs(pFiler, degree());
    return pFiler->filerStatus();
}

Adesk::Boolean AcDbSpline::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    pMode->rawGeometry()->spline(*this);
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbSpline::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    return GiveExtents(ExtentsOfShape(Primitive()), extents);
}

Acad::ErrorStatus AcDbSpline::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    for (std::vector<AcGePoint3d>* pPoints : {&m_arFitPoints, &m_nurbs.m_arControlPoints})
        for (AcGePoint3d& point : *pPoints)
            point.transformBy(xform);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                               AcDbIntArray&) const {
    assertReadEnabled();
    for (const AcGePoint3d& point : hasFitData() ? m_arFitPoints : m_nurbs.m_arControlPoints)
        gripPoints.append(point);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSpline::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled();
    std::vector<AcGePoint3d>& points = hasFitData() ? m_arFitPoints : m_nurbs.m_arControlPoints;
    for (const int index : indices)
        if (index >= 0 && index < static_cast<int>(points.size()))
            points[static_cast<std::size_t>(index)] += offset;
    return Acad::eOk;
}
