#include "drawing/line_entities.h"

#include "platform/acad/db_polyline.h"

namespace {
constexpr double g_dDefaultWidth = -1.0;

struct CWidths {
    double m_dStart = g_dDefaultWidth, m_dEnd = g_dDefaultWidth;
};

void AddTwoPoints(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to, CWidths atFrom,
                  CWidths atTo) {
    auto* pLine = new AcDbPolyline(2);
    pLine->addVertexAt(0, {from.x, from.y}, 0.0, atFrom.m_dStart, atFrom.m_dEnd);
    pLine->addVertexAt(1, {to.x, to.y}, 0.0, atTo.m_dStart, atTo.m_dEnd);
    entitySet.append(static_cast<AcDbEntity*>(pLine));
}
} // namespace

void AddLineEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to) {
    AddTwoPoints(entitySet, from, to, {}, {});
}

void AddWideLineEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to,
                       double dWidth) {
    AddTwoPoints(entitySet, from, to, {dWidth, dWidth}, {dWidth, dWidth});
}

void AddArrowEntity(AcDbVoidPtrArray& entitySet, const AcGePoint3d& from, const AcGePoint3d& to,
                    double dWidth) {
    AddTwoPoints(entitySet, from, to, {dWidth, 0.0}, {});
}
