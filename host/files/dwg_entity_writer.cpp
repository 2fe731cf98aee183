#include "host/files/dwg_entity_writer.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"

#include <algorithm>

namespace {

CDwgLine LineOf(const AcDbLine& line) {
    return {line.startPoint(), line.endPoint()};
}

CDwgArc ArcOf(const AcDbArc& arc) {
    CDwgArc result;
    result.m_ptCenter = arc.center();
    result.m_dRadius = arc.radius();
    result.m_dStart = arc.startAngle();
    result.m_dEnd = arc.endAngle();
    return result;
}

/// Widths that are not set stand as 0, which draws the same thin line.
CDwgPolyline PolylineOf(const AcDbPolyline& polyline) {
    CDwgPolyline result;
    bool bBulges = false, bWidths = false;
    for (const CPolylineVertex& vertex : polyline.Vertices()) {
        result.m_arPoints.push_back(vertex.m_pt);
        result.m_arBulges.push_back(vertex.m_dBulge);
        result.m_arWidths.push_back({std::max(vertex.m_dStartWidth, 0.0), std::max(vertex.m_dEndWidth, 0.0)});
        bBulges = bBulges || !IsPlainZero(vertex.m_dBulge);
        bWidths = bWidths || vertex.m_dStartWidth >= 0.0 || vertex.m_dEndWidth >= 0.0;
    }
    if (!bBulges) result.m_arBulges.clear();
    if (!bWidths) result.m_arWidths.clear();
    result.m_nFlags = static_cast<std::uint16_t>((bBulges ? CDwgPolyline::s_nBulges : 0) |
                                                 (bWidths ? CDwgPolyline::s_nWidths : 0) |
                                                 (polyline.isClosed() ? CDwgPolyline::s_nClosed : 0));
    return result;
}

/// Fit points stand for a cubic curve only; of another degree the curve that follows from them is kept.
CDwgSpline SplineOf(const AcDbSpline& spline) {
    CDwgSpline result;
    result.m_nDegree = static_cast<std::uint32_t>(spline.degree());
    if (spline.hasFitData() && spline.degree() == 3) {
        result.m_nForm = CDwgSpline::s_nByFitPoints;
        result.m_dFitTolerance = spline.FitTolerance();
        result.m_arFitPoints = spline.FitPoints();
        return result;
    }
    const CNurbs nurbs = spline.Nurbs();
    result.m_nDegree = static_cast<std::uint32_t>(nurbs.m_nDegree);
    result.m_bRational = result.m_bWeights = spline.isRational();
    result.m_bClosed = spline.isClosed();
    result.m_bPeriodic = spline.isPeriodic();
    result.m_arKnots = nurbs.m_arKnots;
    for (std::size_t i = 0; i < nurbs.m_arControlPoints.size(); ++i)
        result.m_arControlPoints.push_back(
            {nurbs.m_arControlPoints[i], result.m_bWeights ? nurbs.m_arWeights[i] : 1.0});
    return result;
}

void TakeText(CDwgTextEntity& target, const AcDbText& text, const CDwgWriting& writing) {
    target.m_dElevation = text.position().z;
    target.m_ptPosition = {text.position().x, text.position().y};
    target.m_ptAlignment = {text.alignmentPoint().x, text.alignmentPoint().y};
    target.m_dOblique = text.oblique();
    target.m_dRotation = text.rotation();
    target.m_dHeight = text.height();
    target.m_dWidthFactor = text.widthFactor();
    target.m_strText = writing.m_text.Encode(text.textString());
    target.m_nHorizontal = static_cast<std::uint16_t>(text.horizontalMode());
    target.m_nVertical = static_cast<std::uint16_t>(text.verticalMode());
    const std::uint64_t nStyle = writing.m_handles.Of(text.textStyle());
    target.m_hStyle = HardPointer(nStyle ? nStyle : CDwgFixed::s_nStandardStyle);
}

void TakeAttribute(CDwgAttributeEntity& target, const CAttributeText& attribute, const CDwgWriting& writing) {
    TakeText(target, attribute, writing);
    target.m_strTag = writing.m_text.Encode(attribute.tag());
    target.m_nFieldLength = attribute.fieldLength();
    target.m_nFlags =
        static_cast<std::uint8_t>((attribute.isInvisible() ? CDwgAttributeEntity::s_nInvisible : 0) |
                                  (attribute.isConstant() ? CDwgAttributeEntity::s_nConstant : 0) |
                                  (attribute.isVerifiable() ? CDwgAttributeEntity::s_nVerify : 0) |
                                  (attribute.isPreset() ? CDwgAttributeEntity::s_nPreset : 0));
}

CDwgInsertEntity InsertOf(const AcDbBlockReference& reference, const CDwgSequence& attributes,
                          const CDwgWriting& writing) {
    CDwgInsertEntity result;
    result.m_ptPosition = reference.position();
    result.m_scale = reference.scaleFactors();
    result.m_dRotation = reference.rotation();
    result.m_bAttributes = attributes.m_nEnd != 0;
    result.m_hBlock = HardPointer(writing.m_handles.Of(reference.blockTableRecord()));
    result.m_hFirstAttribute = SoftPointer(attributes.m_nFirst);
    result.m_hLastAttribute = SoftPointer(attributes.m_nLast);
    result.m_hSequenceEnd = HardOwner(attributes.m_nEnd);
    return result;
}

/// The entity if it is of that very class: one derived from it has a record of its own.
template <class Class>
const Class* Exactly(const AcDbEntity& entity) {
    return entity.isA() == Class::desc() ? static_cast<const Class*>(&entity) : nullptr;
}

std::uint16_t WriteCurve(CDwgRecordWriter& io, const AcDbEntity& entity) {
    if (const auto* const pLine = Exactly<AcDbLine>(entity)) {
        const CDwgLine line = LineOf(*pLine);
        return FileLine(io, line), g_nDwgLine;
    }
    if (const auto* const pArc = Exactly<AcDbArc>(entity)) {
        const CDwgArc arc = ArcOf(*pArc);
        return FileArc(io, arc), g_nDwgArc;
    }
    if (const auto* const pPolyline = Exactly<AcDbPolyline>(entity)) {
        const CDwgPolyline polyline = PolylineOf(*pPolyline);
        return FilePolyline(io, polyline), g_nDwgPolyline;
    }
    if (const auto* const pSpline = Exactly<AcDbSpline>(entity)) {
        const CDwgSpline spline = SplineOf(*pSpline);
        return FileSpline(io, spline), g_nDwgSpline;
    }
    return 0;
}

std::uint16_t WriteTextual(CDwgRecordWriter& io, const AcDbEntity& entity, const CDwgWriting& writing) {
    if (const auto* const pText = Exactly<AcDbText>(entity)) {
        CDwgTextEntity text;
        TakeText(text, *pText, writing);
        return FileText(io, text), g_nDwgText;
    }
    if (const auto* const pAttribute = Exactly<AcDbAttribute>(entity)) {
        CDwgAttributeEntity attribute;
        TakeAttribute(attribute, *pAttribute, writing);
        return FileAttribute(io, attribute), g_nDwgAttribute;
    }
    if (const auto* const pDefinition = Exactly<AcDbAttributeDefinition>(entity)) {
        CDwgAttributeDefinitionEntity definition;
        TakeAttribute(definition, *pDefinition, writing);
        definition.m_strPrompt = writing.m_text.Encode(pDefinition->prompt());
        return FileAttributeDefinition(io, definition), g_nDwgAttributeDefinition;
    }
    return 0;
}

/// Writes an entity's own part and gives its type code; 0 for a class that has none here.
std::uint16_t WriteOwnPart(CDwgRecordWriter& io, const AcDbEntity& entity, const CDwgSequence& attributes,
                           const CDwgWriting& writing) {
    if (const auto* const pReference = Exactly<AcDbBlockReference>(entity)) {
        const CDwgInsertEntity insert = InsertOf(*pReference, attributes, writing);
        return FileInsert(io, insert), g_nDwgInsert;
    }
    const std::uint16_t nCurve = WriteCurve(io, entity);
    return nCurve ? nCurve : WriteTextual(io, entity, writing);
}

} // namespace

std::optional<CDwgRecord> WriteDwgEntity(const AcDbEntity& entity, const CDwgEntityCommon& common,
                                         const CDwgSequence& attributes, const CDwgWriting& writing) {
    CDwgRecordWriter io;
    FileEntityCommon(io, common);
    const std::uint16_t nType = WriteOwnPart(io, entity, attributes, writing);
    if (nType == 0) return std::nullopt;
    const std::uint64_t nHandle = writing.m_handles.Of(entity.objectId());
    if (io.Failed()) RefuseDwgObject(nHandle, "a text is too long for a file.");
    CDwgRecord record = io.TakeRecord(nType, nHandle);
    record.m_arExtended = DwgExtendedDataOf(entity, writing);
    return record;
}
