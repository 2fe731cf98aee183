#include "frame/frame_entity.h"

#include "drawing/module_class.h"
#include "frame/frame_fields.h"

#include <new>

namespace {
constinit CModuleClass g_frameClass(L"CBRENFrame", L"CBRENFRAME");

AcRxObject* MakeFrame() {
    return new (std::nothrow) CBRENFrame;
}
} // namespace

AcRxClass* CBRENFrame::desc() {
    return g_frameClass.Desc();
}

CBRENFrame* CBRENFrame::cast(const AcRxObject* pObject) {
    if (!pObject || !pObject->isKindOf(desc())) return nullptr;
    return const_cast<CBRENFrame*>(static_cast<const CBRENFrame*>(pObject));
}

void CBRENFrame::rxInit() {
    g_frameClass.Register(&MakeFrame, FrameFields());
}

void CBRENFrame::rxExit() {
    g_frameClass.Unregister();
}

Acad::ErrorStatus CBRENFrame::setColorIndex(Adesk::UInt16 color, Adesk::Boolean) {
    return AcDbEntity::setColorIndex(color, Adesk::kTrue);
}

void CBRENFrame::saveAs(AcGiWorldDraw* pMode, AcDb::SaveType saveType) {
    m_nPolylineMode = 1;
    AcDbEntity::saveAs(pMode, saveType);
    m_nPolylineMode = 0;
}

Acad::ErrorStatus CBRENFrame::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled(1, 1);
    AcGeVector3d vecAxis = AcGeVector3d::kXAxis;
    if (vecAxis.transformBy(xform) != AcGeVector3d::kXAxis) return Acad::eNotApplicable;
    AcDbEntity::subTransformBy(xform); // an entity as such has nothing to move, whatever it answers
    m_ptBase.transformBy(xform);
    return Acad::eOk;
}

Acad::ErrorStatus CBRENFrame::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                               AcDbIntArray&) const {
    assertReadEnabled();
    gripPoints.append(m_ptBase);
    return Acad::eOk;
}

Acad::ErrorStatus CBRENFrame::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
    assertWriteEnabled(1, 1);
    m_vecGripOffset = offset;
    for (const int nIndex : indices)
        if (nIndex == 0) m_ptBase += offset;
    return Acad::eOk;
}
