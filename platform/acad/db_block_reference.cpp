#include "platform/acad/db_block_reference.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/plane_transform.h"

ACRX_DEFINE_MEMBERS(AcDbBlockReference, AcDbEntity, L"INSERT")

namespace {

void TransformAttributes(const std::vector<AcDbObjectId>& ids, const AcGeMatrix3d& xform) {
    for (const AcDbObjectId& id : ids)
        if (const CDbOpen<AcDbAttribute> attribute(id, AcDb::kForWrite); attribute)
            attribute->transformBy(xform);
}

bool IsFinite(const AcGeScale3d& scale) {
    return std::isfinite(scale.sx) && std::isfinite(scale.sy) && std::isfinite(scale.sz);
}

} // namespace

Acad::ErrorStatus AcDbBlockReference::setBlockTableRecord(AcDbObjectId idBlock) {
    assertWriteEnabled();
    const Acad::ErrorStatus status = CheckRecord<AcDbBlockTableRecord>(idBlock, database());
    if (status != Acad::eOk) return status;
    m_idBlock = idBlock;
    Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setPosition(const AcGePoint3d& position) {
    assertWriteEnabled();
    m_ptPosition = position;
    Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setRotation(double radians) {
    assertWriteEnabled();
    if (!std::isfinite(radians)) return Acad::eInvalidInput;
    m_dRotation = radians;
    Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setScaleFactors(const AcGeScale3d& scale) {
    assertWriteEnabled();
    if (!IsFinite(scale) || scale.sx == 0.0 || scale.sy == 0.0 || scale.sz == 0.0) return Acad::eInvalidInput;
    m_scale = scale;
    Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::setNormal(const AcGeVector3d& normal) {
    assertWriteEnabled();
    return normal.normal() == AcGeVector3d::kZAxis ? Acad::eOk : Acad::eInvalidInput;
}

/// The picture drawn last shows the reference as it was.
void AcDbBlockReference::Changed() {
    SetPicture(nullptr);
}

AcGeVector3d AcDbBlockReference::BasePoint() const {
    const auto* const pBlock = PeekObject<AcDbBlockTableRecord>(m_idBlock);
    return (pBlock ? pBlock->origin() : AcGePoint3d::kOrigin).asVector();
}

AcGeMatrix3d AcDbBlockReference::blockTransform() const {
    assertReadEnabled();
    return AcGeMatrix3d::translation(m_ptPosition.asVector()) *
           AcGeMatrix3d::rotation(m_dRotation, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin) *
           AcGeMatrix3d::scaling(m_scale, AcGePoint3d::kOrigin) * AcGeMatrix3d::translation(-BasePoint());
}

Acad::ErrorStatus AcDbBlockReference::setBlockTransform(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    AcGeVector3d x = AcGeVector3d::kXAxis, y = AcGeVector3d::kYAxis, z = AcGeVector3d::kZAxis;
    for (AcGeVector3d* pAxis : {&x, &y, &z})
        pAxis->transformBy(xform);
    const double dTolerance = 1e-9;
    const auto square = [dTolerance](const AcGeVector3d& a, const AcGeVector3d& b) {
        return std::fabs(a.dotProduct(b)) <=
               dTolerance * a.length() * b.length(); // false for what is no number
    };
    if (!square(x, y) || !square(x, AcGeVector3d::kZAxis) || !square(y, AcGeVector3d::kZAxis) ||
        !square(z, x) || !square(z, y))
        return Acad::eCannotScaleNonUniformly;
    // Of the two ways to tell a mirror image, the one in which x keeps its sign.
    const double dSignX = std::copysign(1.0, m_scale.sx);
    const double dSignY = std::copysign(dSignX, dSignX * (x.x * y.y - x.y * y.x));
    const AcGeScale3d scale(dSignX * x.length(), dSignY * y.length(), std::copysign(z.length(), z.z));
    if (const Acad::ErrorStatus status = setScaleFactors(scale); status != Acad::eOk)
        return Acad::eCannotScaleNonUniformly;
    m_dRotation = std::atan2(dSignX * x.y, dSignX * x.x);
    m_ptPosition = (AcGePoint3d::kOrigin + BasePoint()).transformBy(xform);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbObjectId& id, AcDbAttribute* pAttribute) {
    assertWriteEnabled();
    if (!pAttribute) return Acad::eNullObjectPointer;
    if (!pAttribute->objectId().isNull()) return Acad::eAlreadyInDb;
    if (!database()) return Acad::eNoDatabase;
    const Acad::ErrorStatus status = database()->AddObject(id, pAttribute, objectId());
    if (status != Acad::eOk) return status;
    m_arAttributes.push_back(id);
    if (pAttribute->layerId().isNull()) pAttribute->setLayer(database()->clayer());
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::appendAttribute(AcDbAttribute* pAttribute) {
    AcDbObjectId id;
    return appendAttribute(id, pAttribute);
}

std::vector<AcDbObjectId> AcDbBlockReference::AttributeIds() const {
    assertReadEnabled();
    std::vector<AcDbObjectId> ids = m_arAttributes;
    std::erase_if(ids, [](const AcDbObjectId& id) { return id.isErased(); });
    return ids;
}

Acad::ErrorStatus AcDbBlockReference::erase(bool bErasing) {
    const Acad::ErrorStatus status = AcDbEntity::erase(bErasing);
    if (status != Acad::eOk) return status;
    for (const AcDbObjectId& id : m_arAttributes) {
        AcDbAttribute* pAttribute = nullptr;
        if (acdbOpenObject(pAttribute, id, AcDb::kForWrite, true) != Acad::eOk) continue;
        pAttribute->erase(bErasing);
        pAttribute->close();
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeHardPointerId(m_idBlock);
    pFiler->writePoint3d(m_ptPosition);
    for (const double value : {m_dRotation, m_scale.sx, m_scale.sy, m_scale.sz})
        pFiler->writeDouble(value);
    pFiler->writeInt32(static_cast<Adesk::Int32>(m_arAttributes.size()));
    for (const AcDbObjectId& id : m_arAttributes)
        pFiler->writeHardOwnershipId(id);
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbBlockReference::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    pFiler->readHardPointerId(&m_idBlock);
    if (!PeekObject<AcDbBlockTableRecord>(m_idBlock)) m_idBlock.setNull();
    pFiler->readPoint3d(&m_ptPosition);
    for (double* pValue : {&m_dRotation, &m_scale.sx, &m_scale.sy, &m_scale.sz})
        pFiler->readDouble(pValue);
    Adesk::Int32 nAttributes = 0;
    pFiler->readInt32(&nAttributes);
    m_arAttributes.clear();
    for (Adesk::Int32 i = 0; i < nAttributes; ++i) {
        AcDbObjectId id;
        if (pFiler->readHardOwnershipId(&id) != Acad::eOk) break;
        if (PeekObject<AcDbAttribute>(id)) m_arAttributes.push_back(id);
    }
    Changed();
    return pFiler->filerStatus();
}

Acad::ErrorStatus AcDbBlockReference::subTransformBy(const AcGeMatrix3d& xform) {
    assertWriteEnabled();
    if (const std::optional<CPlaneTransform> plane = PlaneTransform(xform)) {
        m_ptPosition.transformBy(xform);
        m_scale = {m_scale.sx * plane->m_dScale, m_scale.sy * plane->m_dScale, m_scale.sz * plane->m_dScale};
        m_dRotation = plane->m_bMirrored ? plane->m_dTurn - m_dRotation : plane->m_dTurn + m_dRotation;
        if (plane->m_bMirrored) m_scale.sy = -m_scale.sy;
        Changed();
    } else if (const Acad::ErrorStatus status = setBlockTransform(xform * blockTransform());
               status != Acad::eOk) {
        return status;
    }
    TransformAttributes(AttributeIds(), xform);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                                       AcDbIntArray&) const {
    assertReadEnabled();
    gripPoints.append(m_ptPosition);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::subMoveGripPointsAt(const AcDbIntArray& indices,
                                                          const AcGeVector3d& offset) {
    assertWriteEnabled();
    return indices.contains(0) ? transformBy(AcGeMatrix3d::translation(offset)) : Acad::eOk;
}
