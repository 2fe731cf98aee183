// How the chart is moved as a whole: by a translation, or behind the frame that it watches.

#include "chart/chart_points.h"
#include "frame/frame_entity.h"

Acad::ErrorStatus CBRENChart::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled(1, 1);
    AcGeVector3d vecAxis = AcGeVector3d::kXAxis;
    if (vecAxis.transformBy(xform) != AcGeVector3d::kXAxis) return Acad::eNotApplicable;
    for (const CChartPoint pPoint : OwnPoints(*this))
        (this->*pPoint).transformBy(xform);
    return Acad::eOk;
}

void CBRENChart::modified(const AcDbObject* pObject) {
    if (m_bColorChanging != 0) {
        m_bColorChanging = 0;
        return;
    }
    Adesk::Boolean bWasWritable = Adesk::kFalse;
    if (upgradeFromNotify(bWasWritable) != Acad::eOk) return;
    assertWriteEnabled(1, 1);
    if (const CBRENFrame* const pFrame = CBRENFrame::cast(pObject)) {
        const AcGeVector3d vecOffset = pFrame->m_vecGripOffset;
        // What an undo does to the frame it does to the chart as well.
        if (!pFrame->isUndoing() && !vecOffset.isZeroLength())
            for (const CChartPoint pPoint : g_arChartPoints)
                this->*pPoint += vecOffset;
    }
    downgradeToNotify(bWasWritable);
}
