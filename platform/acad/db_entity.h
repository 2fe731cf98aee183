#pragma once

#include "platform/acad/db_object.h"
#include "platform/acad/display_list.h"
#include "platform/acad/geometry.h"
#include "platform/acad/gi_world_draw.h"

#include <memory>
#include <string>

using AcDbVoidPtrArray = AcArray<void*>;

/// Anything that can draw itself into a world-draw context.
class AcGiDrawable : public AcDbObject {
public:
    /// Draws on the given context. What it sets on the traits holds afterwards, unless it is drawn as a
    /// temporary inside another entity's drawing: then the traits are as before.
    Adesk::Boolean worldDraw(AcGiWorldDraw* pMode) { return subWorldDraw(pMode); }

protected:
    virtual Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) = 0;
};

inline constexpr Adesk::UInt16 g_nColorByBlock = 0;
inline constexpr Adesk::UInt16 g_nColorByLayer = 256;

/// An entity: an object that has a place in a block, a layer, a colour, a line type, and a picture.
class AcDbEntity : public AcGiDrawable, public AcHeapOperators {
public:
    ACRX_DECLARE_MEMBERS(AcDbEntity)

    Adesk::UInt16 colorIndex() const { return m_nColorIndex; }
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents = Adesk::kTrue);
    AcDbObjectId linetypeId() const { return m_idLinetype; } ///< null means ByLayer
    std::string LinetypeName() const;                        ///< "ByLayer" for null
    Acad::ErrorStatus setLinetype(AcDbObjectId idLinetype, Adesk::Boolean doSubents = Adesk::kTrue);
    AcDbObjectId layerId() const { return m_idLayer; } ///< null until set or appended
    /// A free entity may be given the layer of any drawing; appending one without gives it the current layer.
    Acad::ErrorStatus setLayer(AcDbObjectId idLayer);
    std::string LayerName() const; ///< "0" for none
    /// Takes colour, layer and line type of another entity. eNullObjectPointer, eWrongDatabase; nothing
    /// changed then.
    Acad::ErrorStatus setPropertiesFrom(const AcDbEntity* pOther);

    /// The box of what the entity shows. eInvalidExtents when it shows nothing finite.
    Acad::ErrorStatus getGeomExtents(AcDbExtents& extents) const { return subGetGeomExtents(extents); }
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& xform) { return subTransformBy(xform); }
    Acad::ErrorStatus explode(AcDbVoidPtrArray& entitySet) const { return subExplode(entitySet); }
    Acad::ErrorStatus getGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                    AcDbIntArray& geomIds) const {
        return subGetGripPoints(gripPoints, osnapModes, geomIds);
    }
    Acad::ErrorStatus moveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
        return subMoveGripPointsAt(indices, offset);
    }
    /// The points by which a stretch takes hold of the entity: its grips unless the class has others.
    Acad::ErrorStatus getStretchPoints(AcGePoint3dArray& stretchPoints) const {
        return subGetStretchPoints(stretchPoints);
    }
    Acad::ErrorStatus moveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) {
        return subMoveStretchPointsAt(indices, offset);
    }
    // Shown as picked, until taken back; no change of the drawing.
    Acad::ErrorStatus highlight() const { return SetHighlighted(true); }
    Acad::ErrorStatus unhighlight() const { return SetHighlighted(false); }
    bool IsHighlighted() const { return m_bHighlighted; }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

    /// Draws the picture that a file keeps beside the record, for programs that don't know the class.
    virtual void saveAs(AcGiWorldDraw* pWorldDraw, AcDb::SaveType) { worldDraw(pWorldDraw); }

    /// What was drawn last; null before the first drawing.
    std::shared_ptr<const CDisplayList> Picture() const { return m_pPicture; }
    void SetPicture(std::shared_ptr<const CDisplayList> pPicture) { m_pPicture = std::move(pPicture); }

protected:
    /// The extents of a custom entity are those of the picture it drew last.
    virtual Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const;
    /// Hands a box out; eInvalidExtents, and extents as they were, for an empty one.
    static Acad::ErrorStatus GiveExtents(const AcDbExtents& box, AcDbExtents& extents);
    virtual Acad::ErrorStatus subTransformBy(const AcGeMatrix3d&) { return Acad::eNotApplicable; }
    virtual Acad::ErrorStatus subExplode(AcDbVoidPtrArray&) const { return Acad::eNotApplicable; }
    virtual Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const {
        return Acad::eNotApplicable;
    }
    virtual Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&) {
        return Acad::eNotApplicable;
    }
    virtual Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const;
    virtual Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices,
                                                     const AcGeVector3d& offset) {
        return subMoveGripPointsAt(indices, offset);
    }

private:
    Acad::ErrorStatus SetHighlighted(bool bHighlighted) const;

    Adesk::UInt16 m_nColorIndex = g_nColorByLayer;
    AcDbObjectId m_idLinetype, m_idLayer;
    std::shared_ptr<const CDisplayList> m_pPicture;
    mutable bool m_bHighlighted = false;
};

/// Opens a stored entity, as acdbOpenObject does.
inline Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& pEntity, AcDbObjectId id, AcDb::OpenMode mode,
                                            bool bOpenErased = false) {
    return acdbOpenObject(pEntity, id, mode, bOpenErased);
}
