#include "host/files/dxf_write_texts.h"

#include "host/files/dxf_angles.h"
#include "platform/acad/db_attribute.h"

namespace {

/// What all kinds of text have.
void WriteText(CDxfOutput& out, const AcDbText& text) {
    const std::wstring strStyle = DxfName(text.textStyle());
    out.Subclass("AcDbText");
    out.Point(10, text.position());
    out.Real(40, text.height());
    out.Text(1, text.textString());
    out.Real(50, DxfDegrees(text.rotation()));
    out.Real(41, text.widthFactor());
    out.Real(51, DxfDegrees(text.oblique()));
    out.Text(7, strStyle.empty() ? L"Standard" : strStyle);
    out.Whole(72, text.horizontalMode());
    if (!text.isDefaultAlignment()) out.Point(11, text.alignmentPoint());
}

void WriteAttribute(CDxfOutput& out, const CAttributeText& attribute) {
    constexpr int nInvisible = 1, nConstant = 2, nVerifiable = 4, nPreset = 8;
    out.Text(2, attribute.tag());
    out.Whole(70, (attribute.isInvisible() ? nInvisible : 0) | (attribute.isConstant() ? nConstant : 0) |
                      (attribute.isVerifiable() ? nVerifiable : 0) | (attribute.isPreset() ? nPreset : 0));
    out.Whole(73, attribute.fieldLength());
    out.Whole(74, attribute.verticalMode());
}

} // namespace

bool WriteDxfText(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbText& text = *AcDbText::cast(&entity);
    WriteText(out, text);
    out.Subclass("AcDbText");
    out.Whole(73, text.verticalMode());
    return true;
}

bool WriteDxfAttributeDefinition(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbAttributeDefinition& definition = *AcDbAttributeDefinition::cast(&entity);
    WriteText(out, definition);
    out.Subclass("AcDbAttributeDefinition");
    out.Text(3, definition.prompt());
    WriteAttribute(out, definition);
    return true;
}

bool WriteDxfAttribute(CDxfOutput& out, const AcDbEntity& entity) {
    const AcDbAttribute& attribute = *AcDbAttribute::cast(&entity);
    WriteText(out, attribute);
    out.Subclass("AcDbAttribute");
    WriteAttribute(out, attribute);
    return true;
}
