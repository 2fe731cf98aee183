#pragma once
// The tables of a drawing and their records: blocks, layers, line types, text styles,
// registered applications.

#include "platform/acad/db_entity.h"
#include "platform/acad/db_symbol_table.h"
#include "platform/acad/text_metrics.h"

/// The colour index that is white on a dark ground and black on paper.
inline constexpr Adesk::UInt16 g_nWhite = 7;

/// A block: its entities in drawing order. Model space is one. Its record does not hold the order, which only
/// ever grows: an entity that is undone is an erased one.
class AcDbBlockTableRecord : public AcDbSymbolTableRecord {
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTableRecord)
    /// Makes a free entity part of the drawing, at the end of the order; it is open for writing afterwards.
    /// eAlreadyInDb, eNullObjectPointer.
    Acad::ErrorStatus appendAcDbEntity(AcDbObjectId& id, AcDbEntity* pEntity);
    Acad::ErrorStatus appendAcDbEntity(AcDbEntity* pEntity);
    AcGePoint3d origin() const { return m_ptOrigin; }
    Acad::ErrorStatus setOrigin(const AcGePoint3d& origin);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;
    /// The entities, erased ones left out unless asked for.
    std::vector<AcDbObjectId> EntityIds(bool bWithErased = false) const;

private:
    std::vector<AcDbObjectId> m_arIds;
    AcGePoint3d m_ptOrigin;
};

class AcDbLayerTableRecord : public AcDbSymbolTableRecord {
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord)
    Adesk::UInt16 ColorIndex() const { return m_nColorIndex; }
    Acad::ErrorStatus SetColorIndex(Adesk::UInt16 color);
    AcDbObjectId linetypeObjectId() const { return m_idLinetype; } ///< null means Continuous
    Acad::ErrorStatus setLinetypeObjectId(AcDbObjectId idLinetype);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

private:
    Adesk::UInt16 m_nColorIndex = g_nWhite;
    AcDbObjectId m_idLinetype;
};

/// A line type: dash lengths in drawing units before scaling, positive a dash, negative a gap, 0 a dot; none
/// for a continuous line.
class AcDbLinetypeTableRecord : public AcDbSymbolTableRecord {
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTableRecord)
    const std::vector<double>& Dashes() const { return m_arDashes; }
    const std::wstring& Comments() const { return m_strComments; }
    Acad::ErrorStatus SetPattern(const ACHAR* comments, std::vector<double> dashes);
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

private:
    std::wstring m_strComments;
    std::vector<double> m_arDashes;
};

class AcDbTextStyleTableRecord : public AcDbSymbolTableRecord {
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTableRecord)
    /// A font by name; takes any shape-font files away.
    Acad::ErrorStatus setFont(const ACHAR* typeface, Adesk::Boolean bold, Adesk::Boolean italic, int charset,
                              int pitchAndFamily);
    Acad::ErrorStatus font(std::wstring& typeface, Adesk::Boolean& bold, Adesk::Boolean& italic, int& charset,
                           int& pitchAndFamily) const;
    /// A shape-font file; takes a font by name away.
    Acad::ErrorStatus setFileName(const ACHAR* fileName);
    Acad::ErrorStatus setBigFontFileName(const ACHAR* fileName);
    const std::wstring& FileName() const { return m_strFileName; }
    const std::wstring& BigFontFileName() const { return m_strBigFontFileName; }
    Acad::ErrorStatus setTextSize(double size); ///< 0: no fixed height. eInvalidInput below 0
    Acad::ErrorStatus setXScale(double scale);
    Acad::ErrorStatus setObliquingAngle(double radians);
    double textSize() const { return m_dTextSize; }
    double xScale() const { return m_dXScale; }
    double obliquingAngle() const { return m_dObliquingAngle; }
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;
    /// What its texts are measured and painted with: the font by name, else the shape-font files.
    CTextFont Font() const;

private:
    std::wstring m_strTypeface, m_strFileName, m_strBigFontFileName;
    Adesk::Boolean m_bBold = 0, m_bItalic = 0;
    int m_nCharset = 0, m_nPitchAndFamily = 0;
    double m_dTextSize = 0.0, m_dXScale = 1.0, m_dObliquingAngle = 0.0;
};

/// A registered application: its name is all there is.
class AcDbRegAppTableRecord : public AcDbSymbolTableRecord {
public:
    ACRX_DECLARE_MEMBERS(AcDbRegAppTableRecord)
};

class AcDbBlockTable : public AcDbSymbolTable {
public:
    ACRX_DECLARE_MEMBERS(AcDbBlockTable)
};
class AcDbLayerTable : public AcDbSymbolTable {
public:
    ACRX_DECLARE_MEMBERS(AcDbLayerTable)
};
class AcDbLinetypeTable : public AcDbSymbolTable {
public:
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTable)
};
class AcDbTextStyleTable : public AcDbSymbolTable {
public:
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTable)
};
class AcDbRegAppTable : public AcDbSymbolTable {
public:
    ACRX_DECLARE_MEMBERS(AcDbRegAppTable)
};
