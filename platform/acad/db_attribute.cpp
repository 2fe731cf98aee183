#include "platform/acad/db_attribute.h"

#include "platform/acad/db_filer.h"
#include "platform/acad/filed_text.h"

ACRX_DEFINE_MEMBERS(AcDbAttributeDefinition, AcDbText, L"ATTDEF")
ACRX_DEFINE_MEMBERS(AcDbAttribute, AcDbText, L"ATTRIB")

CAttributeText::CAttributeText(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag,
                               AcDbObjectId idStyle)
    : AcDbText(position, text, idStyle)
    , m_strTag(tag ? tag : L"") {}

Acad::ErrorStatus CAttributeText::setTag(const ACHAR* tag) {
    assertWriteEnabled();
    if (!tag) return Acad::eInvalidInput;
    m_strTag = tag;
    return Acad::eOk;
}

Acad::ErrorStatus CAttributeText::setFieldLength(Adesk::Int16 length) {
    assertWriteEnabled();
    if (length < 0) return Acad::eInvalidInput;
    m_nFieldLength = length;
    return Acad::eOk;
}

Acad::ErrorStatus CAttributeText::SetFlag(bool& bFlag, Adesk::Boolean value) {
    assertWriteEnabled();
    bFlag = value != Adesk::kFalse;
    return Acad::eOk;
}

void CAttributeText::TakeAttributeFrom(const CAttributeText& other) {
    m_strTag = other.m_strTag;
    m_nFieldLength = other.m_nFieldLength;
    m_bInvisible = other.m_bInvisible;
    m_bConstant = other.m_bConstant;
    m_bVerifiable = other.m_bVerifiable;
    m_bPreset = other.m_bPreset;
}

Acad::ErrorStatus CAttributeText::dwgOutFields(AcDbDwgFiler* pFiler) const {
    if (const Acad::ErrorStatus status = AcDbText::dwgOutFields(pFiler); status != Acad::eOk) return status;
    pFiler->writeString(m_strTag.c_str());
    pFiler->writeInt16(m_nFieldLength);
    for (const bool bFlag : {m_bInvisible, m_bConstant, m_bVerifiable, m_bPreset})
        pFiler->writeBoolean(bFlag);
    return pFiler->filerStatus();
}

Acad::ErrorStatus CAttributeText::dwgInFields(AcDbDwgFiler* pFiler) {
    if (const Acad::ErrorStatus status = AcDbText::dwgInFields(pFiler); status != Acad::eOk) return status;
    ReadText(pFiler, m_strTag);
    pFiler->readInt16(&m_nFieldLength);
    for (bool* pFlag : {&m_bInvisible, &m_bConstant, &m_bVerifiable, &m_bPreset}) {
        Adesk::Boolean value = Adesk::kFalse;
        pFiler->readBoolean(&value);
        *pFlag = value != Adesk::kFalse;
    }
    return pFiler->filerStatus();
}

AcDbAttributeDefinition::AcDbAttributeDefinition(const AcGePoint3d& position, const ACHAR* text,
                                                 const ACHAR* tag, const ACHAR* prompt, AcDbObjectId idStyle)
    : CAttributeText(position, text, tag, idStyle)
    , m_strPrompt(prompt ? prompt : L"") {}

Acad::ErrorStatus AcDbAttributeDefinition::setPrompt(const ACHAR* prompt) {
    assertWriteEnabled();
    if (!prompt) return Acad::eInvalidInput;
    m_strPrompt = prompt;
    return Acad::eOk;
}

const std::wstring& AcDbAttributeDefinition::ShownText() const {
    return isConstant() ? CAttributeText::ShownText() : Tag();
}

Acad::ErrorStatus AcDbAttributeDefinition::dwgOutFields(AcDbDwgFiler* pFiler) const {
    const Acad::ErrorStatus status = CAttributeText::dwgOutFields(pFiler);
    return status == Acad::eOk ? pFiler->writeString(m_strPrompt.c_str()) : status;
}

Acad::ErrorStatus AcDbAttributeDefinition::dwgInFields(AcDbDwgFiler* pFiler) {
    const Acad::ErrorStatus status = CAttributeText::dwgInFields(pFiler);
    return status == Acad::eOk ? ReadText(pFiler, m_strPrompt) : status;
}

AcDbAttribute::AcDbAttribute(const AcGePoint3d& position, const ACHAR* text, const ACHAR* tag,
                             AcDbObjectId idStyle)
    : CAttributeText(position, text, tag, idStyle) {}

Acad::ErrorStatus AcDbAttribute::setAttributeFromBlock(const AcDbAttributeDefinition* pDefinition,
                                                       const AcGeMatrix3d& blockXform) {
    assertWriteEnabled();
    if (!pDefinition) return Acad::eNullObjectPointer;
    TakeTextFrom(*pDefinition);
    TakeAttributeFrom(*pDefinition);
    return transformBy(blockXform);
}

Adesk::Boolean AcDbAttribute::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    return isInvisible() ? Adesk::kTrue : CAttributeText::subWorldDraw(pMode);
}

Acad::ErrorStatus AcDbAttribute::subGetGeomExtents(AcDbExtents& extents) const {
    assertReadEnabled();
    return isInvisible() ? Acad::eInvalidExtents : CAttributeText::subGetGeomExtents(extents);
}

Acad::ErrorStatus AcDbAttribute::subTransformBy(const AcGeMatrix3d& xform) {
    if (CAttributeText::subTransformBy(xform) != Acad::eOk) TransformUnevenly(xform);
    return Acad::eOk;
}
