#pragma once

#include "platform/acad/db_entity.h"

namespace AcDb {
/// Where a text stands along its base line. Aligned and fitted texts reach from the position to the alignment
/// point: the one by its height, the other by its width factor. A middle text lies about its alignment point.
enum TextHorzMode {
    kTextLeft = 0,
    kTextCenter = 1,
    kTextRight = 2,
    kTextAlign = 3,
    kTextMid = 4,
    kTextFit = 5,
};
enum TextVertMode { kTextBase = 0, kTextBottom = 1, kTextVertMid = 2, kTextTop = 3 };
} // namespace AcDb

/// A line of text; its height is the height of its capitals, its extents are advance width by height.
class AcDbText : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AcDbText)
    AcDbText() = default;
    /// text is wide; a null style id stands for the drawing's "Standard".
    AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId idStyle = AcDbObjectId::kNull,
             double height = 0.0, double rotation = 0.0);

    AcGePoint3d position() const { return m_ptPosition; }
    const ACHAR* textString() const { return m_strText.c_str(); }
    double height() const { return m_dHeight; }
    double rotation() const { return m_dRotation; }
    double widthFactor() const { return m_dWidthFactor; }
    double oblique() const { return m_dOblique; }
    AcDbObjectId textStyle() const { return m_idStyle; }
    std::string StyleName() const; ///< GBK; "Standard" for a null style
    AcGeVector3d normal() const { return AcGeVector3d::kZAxis; }
    AcDb::TextHorzMode horizontalMode() const { return m_horizontal; }
    AcDb::TextVertMode verticalMode() const { return m_vertical; }
    AcGePoint3d alignmentPoint() const { return m_ptAlignment; } ///< without meaning while left on the base
    bool isDefaultAlignment() const; ///< left on the base line: the position alone counts

    Acad::ErrorStatus setPosition(const AcGePoint3d& position);
    Acad::ErrorStatus setTextString(const ACHAR* text); ///< eInvalidInput for null
    // eInvalidInput for a number that is not finite, a negative height, a width factor that is not above 0.
    Acad::ErrorStatus setHeight(double height);
    Acad::ErrorStatus setRotation(double radians);
    Acad::ErrorStatus setWidthFactor(double factor);
    Acad::ErrorStatus setOblique(double radians);
    Acad::ErrorStatus setTextStyle(AcDbObjectId idStyle);
    /// Texts lie in the plane of the drawing: eInvalidInput for another direction than its z axis.
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);

    // The position stays where it is until adjustAlignment.
    Acad::ErrorStatus setHorizontalMode(AcDb::TextHorzMode mode);
    Acad::ErrorStatus setVerticalMode(AcDb::TextVertMode mode);
    Acad::ErrorStatus setAlignmentPoint(const AcGePoint3d& point);
    /// Puts the text where its modes want it: the position follows from the alignment point and the size of
    /// the text; aligned and fitted texts are turned and sized to reach from point to point.
    Acad::ErrorStatus adjustAlignment();
    /// Takes over all that makes the other text what it is, besides the properties of every entity.
    void TakeTextFrom(const AcDbText& other);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    /// The position, and the alignment point where it counts; each moves the text.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    virtual const std::wstring& ShownText() const { return m_strText; }
    /// Follows a transformation as well as a text can that does not slant: it never refuses.
    void TransformUnevenly(const AcGeMatrix3d& xform);

private:
    Acad::ErrorStatus SetNumber(double& field, double value, bool bAllowed);
    CTextPrimitive Primitive() const;
    double Width() const; ///< of the extents, along the base line; 0 without extents
    AcGeVector3d ToAlignmentPoint() const;
    void ReachAlignmentPoint();

    AcGePoint3d m_ptPosition, m_ptAlignment;
    AcDb::TextHorzMode m_horizontal = AcDb::kTextLeft;
    AcDb::TextVertMode m_vertical = AcDb::kTextBase;
    std::wstring m_strText;
    double m_dHeight = 0.0, m_dRotation = 0.0, m_dWidthFactor = 1.0, m_dOblique = 0.0;
    AcDbObjectId m_idStyle;
};
