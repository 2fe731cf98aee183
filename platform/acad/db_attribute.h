#pragma once
// Texts that a block asks for: what the block's definition says of them, and the texts on its references.

#include "platform/acad/db_text.h"

/// What a definition and its attributes have in common.
class CAttributeText : public AcDbText {
public:
    const ACHAR* tag() const { return m_strTag.c_str(); } ///< the name by which the text is filled
    Adesk::Int16 fieldLength() const { return m_nFieldLength; }
    bool isInvisible() const { return m_bInvisible; }
    bool isConstant() const { return m_bConstant; } ///< the text belongs to the block and is never filled
    bool isVerifiable() const { return m_bVerifiable; }
    bool isPreset() const { return m_bPreset; } ///< it is not asked for at an insertion
    // eInvalidInput for a null tag and a negative length.
    Acad::ErrorStatus setTag(const ACHAR* tag);
    Acad::ErrorStatus setFieldLength(Adesk::Int16 length);
    Acad::ErrorStatus setInvisible(Adesk::Boolean invisible) { return SetFlag(m_bInvisible, invisible); }
    Acad::ErrorStatus setConstant(Adesk::Boolean constant) { return SetFlag(m_bConstant, constant); }
    Acad::ErrorStatus setVerifiable(Adesk::Boolean verifiable) { return SetFlag(m_bVerifiable, verifiable); }
    Acad::ErrorStatus setPreset(Adesk::Boolean preset) { return SetFlag(m_bPreset, preset); }
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    CAttributeText() = default;
    CAttributeText(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag, AcDbObjectId idStyle);
    const std::wstring& Tag() const { return m_strTag; }
    void TakeAttributeFrom(const CAttributeText& other); ///< tag, field length and flags

private:
    Acad::ErrorStatus SetFlag(bool& bFlag, Adesk::Boolean value);

    std::wstring m_strTag;
    Adesk::Int16 m_nFieldLength = 0;
    bool m_bInvisible = false, m_bConstant = false, m_bVerifiable = false, m_bPreset = false;
};

/// The definition of an attribute in a block; its text is the value unless another is given. It shows its
/// tag, a constant one its text.
class AcDbAttributeDefinition : public CAttributeText {
public:
    ACRX_DECLARE_MEMBERS(AcDbAttributeDefinition)
    AcDbAttributeDefinition() = default;
    AcDbAttributeDefinition(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag,
                            const ACHAR* prompt, AcDbObjectId idStyle = AcDbObjectId::kNull);

    const ACHAR* prompt() const { return m_strPrompt.c_str(); }
    Acad::ErrorStatus setPrompt(const ACHAR* prompt); ///< eInvalidInput for null
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    const std::wstring& ShownText() const override;

private:
    std::wstring m_strPrompt;
};

/// A text on a block reference, filled in for a definition of the block. The reference owns it.
class AcDbAttribute : public CAttributeText {
public:
    ACRX_DECLARE_MEMBERS(AcDbAttribute)
    AcDbAttribute() = default;
    AcDbAttribute(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag,
                  AcDbObjectId idStyle = AcDbObjectId::kNull);

    /// Takes the definition's text, style, size, alignment, tag, field length and flags, and its place by the
    /// reference's transformation. eNullObjectPointer.
    Acad::ErrorStatus setAttributeFromBlock(const AcDbAttributeDefinition* pDefinition,
                                            const AcGeMatrix3d& blockXform);

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override; ///< none while invisible
    /// An attribute follows its reference in whatever this does.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
};
