#include "host/files/dxf_read_texts.h"

#include "host/files/dxf_angles.h"

#include <algorithm>

namespace {

constexpr int g_nInvisible = 1, g_nConstant = 2, g_nVerifiable = 4, g_nPreset = 8;

/// Sets how the text stands. A file that has the same point twice leaves the position to its reader.
bool SetAlignment(const CDxfRecord& record, int nVerticalCode, AcDbText& text) {
    const std::int64_t nHorizontal = record.Whole(72), nVertical = record.Whole(nVerticalCode);
    if (nHorizontal < AcDb::kTextLeft || nHorizontal > AcDb::kTextFit) return false;
    if (nVertical < AcDb::kTextBase || nVertical > AcDb::kTextTop) return false;
    text.setHorizontalMode(static_cast<AcDb::TextHorzMode>(nHorizontal));
    text.setVerticalMode(static_cast<AcDb::TextVertMode>(nVertical));
    if (!record.Find(11)) return true;
    text.setAlignmentPoint(record.Point(11));
    if (!text.isDefaultAlignment() && text.alignmentPoint() == text.position()) text.adjustAlignment();
    return true;
}

/// What all kinds of text have; the code of the vertical mode is their own.
bool SetText(const CDxfRecord& record, int nVerticalCode, CDxfDrawing& drawing, AcDbText& text) {
    if (record.Whole(71) != 0) drawing.Lose("text backward or upside down");
    text.setTextStyle(drawing.TextStyle(record.Text(7)));
    text.setPosition(record.Point(10));
    text.setTextString(record.Text(1).c_str());
    text.setRotation(DxfRadians(record.Real(50)));
    text.setOblique(DxfRadians(record.Real(51)));
    return text.setHeight(record.Real(40)) == Acad::eOk &&
           text.setWidthFactor(record.Real(41, 1.0)) == Acad::eOk &&
           SetAlignment(record, nVerticalCode, text);
}

bool SetAttribute(const CDxfRecord& record, CDxfDrawing& drawing, CAttributeText& attribute) {
    constexpr std::int64_t nLongest = 32767;
    attribute.setTag(record.Text(2).c_str());
    attribute.setFieldLength(
        static_cast<Adesk::Int16>(std::clamp<std::int64_t>(record.Whole(73), 0, nLongest)));
    attribute.setInvisible(record.HasFlag(70, g_nInvisible));
    attribute.setConstant(record.HasFlag(70, g_nConstant));
    attribute.setVerifiable(record.HasFlag(70, g_nVerifiable));
    attribute.setPreset(record.HasFlag(70, g_nPreset));
    return SetText(record, 74, drawing, attribute);
}

} // namespace

std::unique_ptr<AcDbEntity> ReadDxfText(const CDxfRecord& record, CDxfDrawing& drawing) {
    auto pText = std::make_unique<AcDbText>();
    return SetText(record, 73, drawing, *pText) ? std::move(pText) : nullptr;
}

std::unique_ptr<AcDbEntity> ReadDxfAttributeDefinition(const CDxfRecord& record, CDxfDrawing& drawing) {
    auto pDefinition = std::make_unique<AcDbAttributeDefinition>();
    pDefinition->setPrompt(record.Text(3).c_str());
    return SetAttribute(record, drawing, *pDefinition) ? std::move(pDefinition) : nullptr;
}

std::unique_ptr<AcDbAttribute> ReadDxfAttribute(const CDxfRecord& record, CDxfDrawing& drawing) {
    auto pAttribute = std::make_unique<AcDbAttribute>();
    return SetAttribute(record, drawing, *pAttribute) ? std::move(pAttribute) : nullptr;
}
