#include "host/files/three_point_arc.h"

std::optional<CArcPrimitive> ArcThrough(const AcGePoint3d& first, const AcGePoint3d& second,
                                        const AcGePoint3d& third) {
    const AcGeVector3d toSecond = second - first, toThird = third - first;
    const AcGeVector3d normal = toSecond.crossProduct(toThird);
    const double dSquare = normal.dotProduct(normal);
    const AcGeVector3d toCenter = (normal.crossProduct(toSecond) * toThird.dotProduct(toThird) +
                                   toThird.crossProduct(normal) * toSecond.dotProduct(toSecond)) *
                                  (0.5 / dSquare);
    CArcPrimitive arc;
    arc.m_ptCenter = first + toCenter;
    arc.m_dRadius = toCenter.length();
    arc.m_vecNormal = normal.normal();
    arc.m_vecStart = (-toCenter).normal();
    const AcGeVector3d side = arc.m_vecNormal.crossProduct(arc.m_vecStart), end = third - arc.m_ptCenter;
    arc.m_dSweep = std::atan2(end.dotProduct(side), end.dotProduct(arc.m_vecStart));
    if (arc.m_dSweep <= 0.0) arc.m_dSweep += g_dFullTurn;
    if (!std::isfinite(arc.m_dRadius) || !std::isfinite(arc.m_dSweep)) return {};
    return arc;
}
