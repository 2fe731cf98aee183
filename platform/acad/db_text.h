#pragma once

#include "platform/acad/db_entity.h"

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

    // eInvalidInput for a number that is not finite, a negative height, a width factor that is not above 0.
    Acad::ErrorStatus setPosition(const AcGePoint3d& position);
    Acad::ErrorStatus setTextString(const ACHAR* text);
    Acad::ErrorStatus setHeight(double height);
    Acad::ErrorStatus setRotation(double radians);
    Acad::ErrorStatus setWidthFactor(double factor);
    Acad::ErrorStatus setOblique(double radians);
    Acad::ErrorStatus setTextStyle(AcDbObjectId idStyle);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;

private:
    Acad::ErrorStatus SetNumber(double& field, double value, bool bAllowed);
    CTextPrimitive Primitive() const;

    AcGePoint3d m_ptPosition;
    std::wstring m_strText;
    double m_dHeight = 0.0, m_dRotation = 0.0, m_dWidthFactor = 1.0, m_dOblique = 0.0;
    AcDbObjectId m_idStyle;
};
