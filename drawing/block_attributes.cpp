#include "drawing/block_attributes.h"

#include "drawing/placed_text.h"
#include "platform/windows/code_page.h"

#include <cmath>
#include <memory>

namespace {
constexpr Adesk::Int16 g_nNewFieldLength = 25;

std::unique_ptr<AcDbAttribute> MakeAttribute(const AcDbAttributeDefinition& definition,
                                             const AcGeMatrix3d& blockTransform) {
    auto pAttribute = std::make_unique<AcDbAttribute>();
    pAttribute->setPropertiesFrom(&definition);
    pAttribute->setAttributeFromBlock(&definition, blockTransform);
    pAttribute->setTag(L"");
    pAttribute->setFieldLength(g_nNewFieldLength);
    pAttribute->setTag(definition.tag());
    pAttribute->setNormal({0.0, 0.0, 1.0});
    pAttribute->setFieldLength(definition.fieldLength());
    pAttribute->setTextStyle(definition.textStyle());
    return pAttribute;
}

/// Moves a centred text to the left by what the value is longer than the tag, in lengths of the tag.
void Balance(AcDbAttribute& attribute, int nTagLength, int nLength) {
    const float fRatio = static_cast<float>(nLength) / static_cast<float>(nTagLength);
    const AcGePoint3d pt = attribute.position();
    attribute.setPosition(
        {pt.x - (fRatio - 1.0F) * std::fabs(pt.x - attribute.alignmentPoint().x), pt.y, pt.z});
}
} // namespace

void AppendAttributes(const AcDbBlockTableRecord& definition, AcDbBlockReference& reference) {
    const AcGeMatrix3d blockTransform = reference.blockTransform();
    for (const AcDbObjectId id : definition.EntityIds()) {
        const CDbOpen<AcDbAttributeDefinition> asked(id);
        if (!asked || asked->isConstant()) continue;
        std::unique_ptr<AcDbAttribute> pAttribute = MakeAttribute(*asked.Get(), blockTransform);
        if (reference.appendAttribute(pAttribute.get()) == Acad::eOk) pAttribute.release()->close();
    }
}

void FillAttribute(AcDbAttribute& attribute, const CTextsByTag& texts) {
    const CString strTag(attribute.tag());
    CString strText;
    if (attribute.isConstant() || !texts.Lookup(strTag, strText)) return;
    if (attribute.horizontalMode() != AcDb::kTextCenter && attribute.horizontalMode() != AcDb::kTextMid)
        return SetPlacedText(attribute, strText);
    strText.Trim();
    if (!strTag.IsEmpty()) Balance(attribute, strTag.GetLength(), strText.GetLength());
    attribute.setTextString(WideFromGbk(strText.View()).c_str());
}
