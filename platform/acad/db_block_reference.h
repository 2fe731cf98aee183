#pragma once

#include "platform/acad/db_attribute.h"

/// A block shown at a place of its own: moved from the block's base point, turned and scaled. Attributes
/// belong to it; they stand where they are put, not where the block would put them.
class AcDbBlockReference : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockReference)
    AcDbBlockReference() = default;
    AcDbBlockReference(const AcGePoint3d& position, AcDbObjectId idBlock)
        : m_ptPosition(position)
        , m_idBlock(idBlock) {}

    AcDbObjectId blockTableRecord() const { return m_idBlock; }
    AcGePoint3d position() const { return m_ptPosition; }
    double rotation() const { return m_dRotation; } ///< radians about the z axis
    AcGeScale3d scaleFactors() const { return m_scale; }
    AcGeVector3d normal() const { return AcGeVector3d::kZAxis; }
    // eInvalidInput for an angle or a factor that is not finite, and a factor of 0. Attributes stay.
    Acad::ErrorStatus setBlockTableRecord(AcDbObjectId idBlock); ///< eNotThatKindOfClass, eWrongDatabase
    Acad::ErrorStatus setPosition(const AcGePoint3d& position);
    Acad::ErrorStatus setRotation(double radians);
    Acad::ErrorStatus setScaleFactors(const AcGeScale3d& scale);
    /// References lie in the plane of the drawing: eInvalidInput for another direction than its z axis.
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);

    /// What takes the block's points to where the reference shows them.
    AcGeMatrix3d blockTransform() const;
    /// eCannotScaleNonUniformly for what slants the block or takes it out of its plane; nothing changed then.
    Acad::ErrorStatus setBlockTransform(const AcGeMatrix3d& xform);

    /// The box of what the reference shows of its block, its attributes left out; of a turned reference it
    /// may be larger. Empty when the block shows nothing finite.
    AcDbExtents BlockExtents() const;

    /// Makes a free attribute part of the drawing and of this reference, which must be in a drawing; it is
    /// open for writing afterwards. eNullObjectPointer, eAlreadyInDb, eNoDatabase.
    Acad::ErrorStatus appendAttribute(AcDbObjectId& id, AcDbAttribute* pAttribute);
    Acad::ErrorStatus appendAttribute(AcDbAttribute* pAttribute);
    std::vector<AcDbObjectId> AttributeIds() const; ///< in order of appending, erased ones left out

    Acad::ErrorStatus erase(bool bErasing = true) override; ///< its attributes along with it
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    /// The entities of the block, its attribute definitions only if they are constant, then the attributes.
    /// A block is not shown within itself.
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    /// Those of the picture, or, before it is drawn, those of the block and the attributes.
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    /// Free copies of what the reference shows; attributes and constant definitions become texts.
    /// eCannotScaleNonUniformly where a part cannot follow, and then there is none.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    /// The insertion point, which takes the attributes along.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;

private:
    using CParts = std::vector<std::unique_ptr<AcDbEntity>>;
    std::vector<AcDbObjectId> ShownIds() const; ///< what is shown of the block
    AcGeVector3d BasePoint() const;
    void Changed();
    // Parts of the explosion, transformed.
    static Acad::ErrorStatus AddPart(AcDbObjectId id, const AcGeMatrix3d& xform, CParts& parts);
    Acad::ErrorStatus AddAttributes(const AcGeMatrix3d& xform, CParts& parts) const;

    AcGePoint3d m_ptPosition;
    double m_dRotation = 0.0;
    AcGeScale3d m_scale;
    AcDbObjectId m_idBlock;
    std::vector<AcDbObjectId> m_arAttributes; // erased ones too: an undo brings them back
};
