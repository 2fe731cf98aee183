// What a block reference shows: its picture, its extents, and the parts it explodes into.

#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_database.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/display_transform.h"
#include "platform/acad/free_copy.h"
#include "platform/acad/plane_transform.h"

#include <algorithm>

namespace {

/// Marks a block as being walked through for the length of a scope. False when it is already: a block that
/// holds a reference to itself shows nothing there.
class CBlockWalk {
public:
    explicit CBlockWalk(AcDbObjectId idBlock) {
        if (std::find(s_arBlocks.begin(), s_arBlocks.end(), idBlock) != s_arBlocks.end()) return;
        s_arBlocks.push_back(idBlock);
        m_bMarked = true;
    }
    ~CBlockWalk() {
        if (m_bMarked) s_arBlocks.pop_back();
    }
    CBlockWalk(const CBlockWalk&) = delete;
    CBlockWalk& operator=(const CBlockWalk&) = delete;
    explicit operator bool() const { return m_bMarked; }

private:
    inline static std::vector<AcDbObjectId> s_arBlocks; // drawings are used on the main thread only
    bool m_bMarked = false;
};

/// What a part shows, drawn as the reference draws it: what is "by block" has the reference's traits.
CDisplayList PictureOfPart(AcDbObjectId idPart, const AcDbEntity& reference, bool bDragging) {
    const CDbOpen<AcDbEntity> part(idPart);
    if (!part) return {};
    CDisplayRecorder recorder(*part.Get(), bDragging);
    part->worldDraw(&recorder);
    CDisplayList list = recorder.Take();
    for (CPrimitive& primitive : list) {
        if (primitive.m_nColor == g_nColorByBlock) primitive.m_nColor = reference.colorIndex();
        if (primitive.m_strLinetype == "ByBlock") primitive.m_strLinetype = reference.LinetypeName();
    }
    return list;
}

void AddExtents(AcDbObjectId idPart, const AcGeMatrix3d& xform, AcDbExtents& box) {
    const CDbOpen<AcDbEntity> part(idPart);
    AcDbExtents extents;
    if (!part || part->getGeomExtents(extents) != Acad::eOk) return;
    const AcGePoint3d low = extents.minPoint(), high = extents.maxPoint();
    for (const double x : {low.x, high.x})
        for (const double y : {low.y, high.y})
            for (const double z : {low.z, high.z})
                box.addPoint(AcGePoint3d(x, y, z).transformBy(xform));
}

/// A free copy, of an attribute or a definition as a plain text.
std::unique_ptr<AcDbEntity> PartOf(const AcDbEntity& entity) {
    const auto* const pText = AcDbText::cast(&entity);
    if (!pText || pText->isA() == AcDbText::desc()) return FreeCopy(entity);
    auto pPart = std::make_unique<AcDbText>();
    pPart->TakeTextFrom(*pText);
    pPart->setPropertiesFrom(pText);
    return pPart;
}

} // namespace

std::vector<AcDbObjectId> AcDbBlockReference::ShownIds() const {
    const CDbOpen<AcDbBlockTableRecord> block(m_idBlock);
    std::vector<AcDbObjectId> ids = block ? block->EntityIds() : std::vector<AcDbObjectId>();
    std::erase_if(ids, [](const AcDbObjectId& id) {
        const auto* const pDefinition = PeekObject<AcDbAttributeDefinition>(id);
        return pDefinition && (!pDefinition->isConstant() || pDefinition->isInvisible());
    });
    return ids;
}

Adesk::Boolean AcDbBlockReference::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    if (const CBlockWalk walk(m_idBlock); walk)
        for (const AcDbObjectId& id : ShownIds())
            pMode->rawGeometry()->Picture(
                Transformed(PictureOfPart(id, *this, pMode->isDragging()), blockTransform()));
    for (const AcDbObjectId& id : AttributeIds())
        pMode->rawGeometry()->Picture(PictureOfPart(id, *this, pMode->isDragging()));
    return Adesk::kTrue;
}

AcDbExtents AcDbBlockReference::BlockExtents() const {
    assertReadEnabled();
    AcDbExtents box;
    if (const CBlockWalk walk(m_idBlock); walk)
        for (const AcDbObjectId& id : ShownIds())
            AddExtents(id, blockTransform(), box);
    return box;
}

Acad::ErrorStatus AcDbBlockReference::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    if (Picture()) return AcDbEntity::subGetGeomExtents(extents);
    AcDbExtents box = BlockExtents();
    for (const AcDbObjectId& id : AttributeIds())
        AddExtents(id, AcGeMatrix3d(), box);
    return GiveExtents(box, extents);
}

Acad::ErrorStatus AcDbBlockReference::AddPart(AcDbObjectId id, const AcGeMatrix3d& xform, CParts& parts) {
    const CDbOpen<AcDbEntity> entity(id);
    if (!entity) return entity.Status();
    std::unique_ptr<AcDbEntity> pPart = PartOf(*entity.Get());
    if (!pPart) return Acad::eNotApplicable;
    const Acad::ErrorStatus status = pPart->transformBy(xform);
    if (status != Acad::eOk) return PlaneTransform(xform) ? status : Acad::eCannotScaleNonUniformly;
    parts.push_back(std::move(pPart));
    const auto* const pReference = AcDbBlockReference::cast(entity.Get());
    return pReference ? pReference->AddAttributes(xform, parts) : Acad::eOk; // a copy is without its own
}

Acad::ErrorStatus AcDbBlockReference::AddAttributes(const AcGeMatrix3d& xform, CParts& parts) const {
    for (const AcDbObjectId& id : AttributeIds()) {
        const auto* const pAttribute = PeekObject<AcDbAttribute>(id);
        if (pAttribute->isInvisible()) continue;
        if (const Acad::ErrorStatus status = AddPart(id, xform, parts); status != Acad::eOk) return status;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockReference::subExplode(AcDbVoidPtrArray& entitySet) const {
    assertReadEnabled();
    CParts parts;
    for (const AcDbObjectId& id : ShownIds())
        if (const Acad::ErrorStatus status = AddPart(id, blockTransform(), parts); status != Acad::eOk)
            return status;
    if (const Acad::ErrorStatus status = AddAttributes(AcGeMatrix3d(), parts); status != Acad::eOk)
        return status;
    for (std::unique_ptr<AcDbEntity>& pPart : parts)
        entitySet.append(pPart.release());
    return Acad::eOk;
}
