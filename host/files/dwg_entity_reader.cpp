#include "host/files/dwg_entity_reader.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_proxies.h"
#include "host/files/dwg_texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"

namespace {

std::unique_ptr<AcDbEntity> MakeLine(const CDwgLine& line) {
    return std::make_unique<AcDbLine>(line.m_ptStart, line.m_ptEnd);
}

std::unique_ptr<AcDbEntity> MakeArc(const CDwgArc& arc) {
    return std::make_unique<AcDbArc>(arc.m_ptCenter, arc.m_dRadius, arc.m_dStart, arc.m_dEnd);
}

std::unique_ptr<AcDbEntity> MakePolyline(const CDwgPolyline& part) {
    auto pPolyline = std::make_unique<AcDbPolyline>();
    const bool bConstant = (part.m_nFlags & CDwgPolyline::s_nConstantWidth) != 0;
    for (unsigned i = 0; i < part.m_arPoints.size(); ++i) {
        const double dUsual = bConstant ? part.m_dConstantWidth : -1.0;
        const CDwgWidths widths =
            i < part.m_arWidths.size() ? part.m_arWidths[i] : CDwgWidths{dUsual, dUsual};
        const double dBulge = i < part.m_arBulges.size() ? part.m_arBulges[i] : 0.0;
        pPolyline->addVertexAt(i, part.m_arPoints[i], dBulge, widths.m_dStart, widths.m_dEnd);
    }
    pPolyline->setClosed((part.m_nFlags & CDwgPolyline::s_nClosed) != 0);
    return pPolyline;
}

std::unique_ptr<AcDbEntity> MakeSpline(const CDwgSpline& part) {
    AcGePoint3dArray points;
    if (part.m_nForm == CDwgSpline::s_nByFitPoints) {
        for (const AcGePoint3d& pt : part.m_arFitPoints)
            points.append(pt);
        return std::make_unique<AcDbSpline>(points, static_cast<int>(part.m_nDegree) + 1,
                                            part.m_dFitTolerance);
    }
    AcGeDoubleArray knots, weights;
    for (const double dKnot : part.m_arKnots)
        knots.append(dKnot);
    for (const CDwgControlPoint& point : part.m_arControlPoints) {
        points.append(point.m_pt);
        weights.append(point.m_dWeight);
    }
    return std::make_unique<AcDbSpline>(static_cast<int>(part.m_nDegree), part.m_bWeights, part.m_bClosed,
                                        part.m_bPeriodic, points, knots, weights);
}

void GiveText(AcDbText& text, const CDwgTextEntity& part, const CDwgReading& reading) {
    text.setPosition({part.m_ptPosition.x, part.m_ptPosition.y, part.m_dElevation});
    text.setTextString(reading.Text(part.m_strText).c_str());
    text.setHeight(part.m_dHeight);
    text.setRotation(part.m_dRotation);
    text.setWidthFactor(part.m_dWidthFactor);
    text.setOblique(part.m_dOblique);
    text.setTextStyle(reading.IdOf(part.m_hStyle));
    if (part.m_nHorizontal <= AcDb::kTextFit)
        text.setHorizontalMode(static_cast<AcDb::TextHorzMode>(part.m_nHorizontal));
    if (part.m_nVertical <= AcDb::kTextTop)
        text.setVerticalMode(static_cast<AcDb::TextVertMode>(part.m_nVertical));
    const bool bAligned = !IsPlainZero(part.m_ptAlignment.x) || !IsPlainZero(part.m_ptAlignment.y) ||
                          !text.isDefaultAlignment();
    if (bAligned) text.setAlignmentPoint({part.m_ptAlignment.x, part.m_ptAlignment.y, part.m_dElevation});
}

void GiveAttribute(CAttributeText& attribute, const CDwgAttributeEntity& part, const CDwgReading& reading) {
    GiveText(attribute, part, reading);
    const auto has = [&part](std::uint8_t nFlag) { return (part.m_nFlags & nFlag) != 0; };
    attribute.setTag(reading.Text(part.m_strTag).c_str());
    attribute.setFieldLength(part.m_nFieldLength);
    attribute.setInvisible(has(CDwgAttributeEntity::s_nInvisible));
    attribute.setConstant(has(CDwgAttributeEntity::s_nConstant));
    attribute.setVerifiable(has(CDwgAttributeEntity::s_nVerify));
    attribute.setPreset(has(CDwgAttributeEntity::s_nPreset));
}

std::unique_ptr<AcDbEntity> MakeText(const CDwgTextEntity& part, const CDwgReading& reading) {
    auto pText = std::make_unique<AcDbText>();
    GiveText(*pText, part, reading);
    return pText;
}

std::unique_ptr<AcDbEntity> MakeAttribute(const CDwgAttributeEntity& part, const CDwgReading& reading) {
    auto pAttribute = std::make_unique<AcDbAttribute>();
    GiveAttribute(*pAttribute, part, reading);
    return pAttribute;
}

std::unique_ptr<AcDbEntity> MakeDefinition(const CDwgAttributeDefinitionEntity& part,
                                           const CDwgReading& reading) {
    auto pDefinition = std::make_unique<AcDbAttributeDefinition>();
    GiveAttribute(*pDefinition, part, reading);
    pDefinition->setPrompt(reading.Text(part.m_strPrompt).c_str());
    return pDefinition;
}

std::unique_ptr<AcDbEntity> MakeReference(const CDwgInsertEntity& part, const CDwgReading& reading) {
    auto pReference = std::make_unique<AcDbBlockReference>(part.m_ptPosition, reading.IdOf(part.m_hBlock));
    pReference->setScaleFactors(part.m_scale);
    pReference->setRotation(part.m_dRotation);
    return pReference;
}

/// Colour, layer and line type.
void GiveProperties(AcDbEntity& entity, const CDwgEntityCommon& common, const CDwgReading& reading) {
    const AcDbDatabase& database = reading.m_database;
    entity.setColorIndex(common.m_nColor);
    const AcDbObjectId idLayer = reading.IdOf(common.m_hLayer);
    if (entity.setLayer(idLayer) != Acad::eOk) entity.setLayer(RecordNamed(database.layerTableId(), L"0"));
    if (common.m_nLinetype == g_nDwgByHandle) entity.setLinetype(reading.IdOf(common.m_hLinetype));
    if (common.m_nLinetype == g_nDwgByBlock)
        entity.setLinetype(RecordNamed(database.linetypeTableId(), L"ByBlock"));
    if (common.m_nLinetype == g_nDwgContinuous)
        entity.setLinetype(RecordNamed(database.linetypeTableId(), L"Continuous"));
}

/// Reads the common part, then the own part by its description.
template <class Part, class File>
Part ReadParts(const CDwgRecord& record, CDwgEntityCommon& common, File file) {
    return ReadDwgValue<Part>(record, [&common, file](auto& io, auto& part) {
        FileEntityCommon(io, common);
        file(io, part);
    });
}

} // namespace

CDwgReadEntity KeepDwgEntity(const CDwgRecord& record, const CDwgReading& reading) {
    CDwgRecordReader reader(record);
    auto pProxy = std::make_unique<AcDbProxyEntity>();
    pProxy->SetOrigin(DwgProxyOrigin(record, reading));
    CDwgReadEntity read;
    read.m_common = ReadDwgCommon<CDwgEntityCommon>(reader, record.m_nHandle, DWG_FILED(FileEntityCommon));
    GiveProperties(*pProxy, read.m_common, reading);
    read.m_pEntity = std::move(pProxy);
    return read;
}

CDwgReadEntity ReadDwgEntity(const CDwgRecord& record, const CDwgReading& reading) {
    CDwgReadEntity read;
    const auto part = [&]<class Part>(Part, auto file) {
        return ReadParts<Part>(record, read.m_common, file);
    };
    switch (record.m_nType) {
    case g_nDwgLine:
        read.m_pEntity = MakeLine(part(CDwgLine(), DWG_FILED(FileLine)));
        break;
    case g_nDwgArc:
        read.m_pEntity = MakeArc(part(CDwgArc(), DWG_FILED(FileArc)));
        break;
    case g_nDwgPolyline:
        read.m_pEntity = MakePolyline(part(CDwgPolyline(), DWG_FILED(FilePolyline)));
        break;
    case g_nDwgSpline:
        read.m_pEntity = MakeSpline(part(CDwgSpline(), DWG_FILED(FileSpline)));
        break;
    case g_nDwgText:
        read.m_pEntity = MakeText(part(CDwgTextEntity(), DWG_FILED(FileText)), reading);
        break;
    case g_nDwgAttribute:
        read.m_pEntity = MakeAttribute(part(CDwgAttributeEntity(), DWG_FILED(FileAttribute)), reading);
        break;
    case g_nDwgAttributeDefinition:
        read.m_pEntity = MakeDefinition(
            part(CDwgAttributeDefinitionEntity(), DWG_FILED(FileAttributeDefinition)), reading);
        break;
    case g_nDwgInsert: {
        const auto insert = part(CDwgInsertEntity(), DWG_FILED(FileInsert));
        read.m_pEntity = MakeReference(insert, reading);
        read.m_nFirstAttribute = insert.m_hFirstAttribute.m_nValue;
        read.m_nLastAttribute = insert.m_hLastAttribute.m_nValue;
        read.m_nSequenceEnd = insert.m_hSequenceEnd.m_nValue;
        break;
    }
    default:
        return KeepDwgEntity(record, reading);
    }
    GiveProperties(*read.m_pEntity, read.m_common, reading);
    return read;
}
