#include "host/files/dwg_entity_writer.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curve_parts.h"
#include "host/files/dwg_own_part_writer.h"
#include "host/files/dwg_texts.h"
#include "platform/acad/db_arc.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_line.h"
#include "platform/acad/db_proxy.h"

#include <utility>

namespace {

void TakeLinetype(CDwgEntityCommon& common, AcDbObjectId idLinetype, const CDwgWriting& writing) {
    const AcDbObjectId idTable = writing.m_database.linetypeTableId();
    const auto is = [&](const ACHAR* name) { return idLinetype == RecordNamed(idTable, name); };
    common.m_hLinetype = HardPointer(writing.m_handles.Of(idLinetype));
    common.m_nLinetype = common.m_hLinetype.m_nValue == 0 || is(L"ByLayer") ? g_nDwgByLayer
                         : is(L"ByBlock")                                   ? g_nDwgByBlock
                         : is(L"Continuous")                                ? g_nDwgContinuous
                                                                            : g_nDwgByHandle;
}

/// A proxy keeps the picture that it came with.
void TakePicture(CDwgEntityCommon& common, const AcDbEntity& entity, const CDwgWriting& writing) {
    const CBytes* const pPicture = writing.m_pPictures ? writing.m_pPictures->Of(entity) : nullptr;
    if (!pPicture || (common.m_bGraphics && AcDbProxyEntity::cast(&entity))) return;
    common.m_bGraphics = true;
    common.m_arGraphics = *pPicture;
}

/// Takes what an entity is of a fixed type over what it was in the file that the drawing is of.
class CEntityWriter {
public:
    CEntityWriter(CDwgRecordWriter& io, const AcDbEntity& entity, const CDwgSequence& attributes,
                  const CDwgWriting& writing)
        : m_io(io)
        , m_entity(entity)
        , m_attributes(attributes)
        , m_writing(writing) {}

    /// Writes the entity's own part and gives its type code; 0 for a class that has none here.
    std::uint16_t Write() {
        const bool bWritten =
            WriteAs<AcDbLine, CDwgLine>(g_nDwgLine, DWG_FILED(FileLine)) ||
            WriteAs<AcDbArc, CDwgArc>(g_nDwgArc, DWG_FILED(FileArc)) ||
            WriteAs<AcDbPolyline, CDwgPolyline>(g_nDwgPolyline, DWG_FILED(FilePolyline)) ||
            WriteAs<AcDbSpline, CDwgSpline>(g_nDwgSpline, DWG_FILED(FileSpline)) ||
            WriteAs<AcDbText, CDwgTextEntity>(g_nDwgText, DWG_FILED(FileText)) ||
            WriteAs<AcDbAttribute, CDwgAttributeEntity>(g_nDwgAttribute, DWG_FILED(FileAttribute)) ||
            WriteAs<AcDbAttributeDefinition, CDwgAttributeDefinitionEntity>(
                g_nDwgAttributeDefinition, DWG_FILED(FileAttributeDefinition)) ||
            WriteAs<AcDbBlockReference, CDwgInsertEntity>(g_nDwgInsert, DWG_FILED(FileInsert));
        return bWritten ? m_nType : std::uint16_t{0};
    }

private:
    /// Writes the entity if it is of that very class: one derived from it has a record of its own.
    template <class Class, class Part, class File>
    bool WriteAs(std::uint16_t nType, File file) {
        if (m_entity.isA() != Class::desc()) return false;
        Part part = FormerDwgPart<Part>(m_writing, m_writing.m_handles.Of(m_entity.objectId()), nType, file);
        Take(part, static_cast<const Class&>(m_entity));
        file(m_io, std::as_const(part));
        m_nType = nType;
        return true;
    }

    static void Take(CDwgLine& part, const AcDbLine& line) {
        part.m_ptStart = line.startPoint();
        part.m_ptEnd = line.endPoint();
    }

    static void Take(CDwgArc& part, const AcDbArc& arc) {
        part.m_ptCenter = arc.center();
        part.m_dRadius = arc.radius();
        part.m_dStart = arc.startAngle();
        part.m_dEnd = arc.endAngle();
    }

    static void Take(CDwgPolyline& part, const AcDbPolyline& polyline) { TakePolyline(part, polyline); }
    static void Take(CDwgSpline& part, const AcDbSpline& spline) { TakeSpline(part, spline); }

    void Take(CDwgTextEntity& part, const AcDbText& text) const {
        part.m_dElevation = text.position().z;
        part.m_ptPosition = {text.position().x, text.position().y};
        part.m_ptAlignment = {text.alignmentPoint().x, text.alignmentPoint().y};
        part.m_dOblique = text.oblique();
        part.m_dRotation = text.rotation();
        part.m_dHeight = text.height();
        part.m_dWidthFactor = text.widthFactor();
        part.m_strText = m_writing.m_text.Encode(text.textString());
        part.m_nHorizontal = static_cast<std::uint16_t>(text.horizontalMode());
        part.m_nVertical = static_cast<std::uint16_t>(text.verticalMode());
        const AcDbObjectId idStyles = m_writing.m_database.textStyleTableId();
        const std::uint64_t nStyle = m_writing.m_handles.Of(text.textStyle());
        part.m_hStyle =
            HardPointer(nStyle ? nStyle : m_writing.m_handles.Of(RecordNamed(idStyles, L"Standard")));
    }

    void Take(CDwgAttributeEntity& part, const CAttributeText& attribute) const {
        Take(part, static_cast<const AcDbText&>(attribute));
        part.m_strTag = m_writing.m_text.Encode(attribute.tag());
        part.m_nFieldLength = attribute.fieldLength();
        part.m_nFlags =
            static_cast<std::uint8_t>((attribute.isInvisible() ? CDwgAttributeEntity::s_nInvisible : 0) |
                                      (attribute.isConstant() ? CDwgAttributeEntity::s_nConstant : 0) |
                                      (attribute.isVerifiable() ? CDwgAttributeEntity::s_nVerify : 0) |
                                      (attribute.isPreset() ? CDwgAttributeEntity::s_nPreset : 0));
    }

    void Take(CDwgAttributeDefinitionEntity& part, const AcDbAttributeDefinition& definition) const {
        Take(part, static_cast<const CAttributeText&>(definition));
        part.m_strPrompt = m_writing.m_text.Encode(definition.prompt());
    }

    void Take(CDwgInsertEntity& part, const AcDbBlockReference& reference) const {
        part.m_ptPosition = reference.position();
        part.m_scale = reference.scaleFactors();
        part.m_dRotation = reference.rotation();
        part.m_bAttributes = m_attributes.m_nEnd != 0;
        part.m_hBlock = HardPointer(m_writing.m_handles.Of(reference.blockTableRecord()));
        part.m_hFirstAttribute = SoftPointer(m_attributes.m_nFirst);
        part.m_hLastAttribute = SoftPointer(m_attributes.m_nLast);
        part.m_hSequenceEnd = HardOwner(m_attributes.m_nEnd);
    }

    CDwgRecordWriter& m_io;
    const AcDbEntity& m_entity;
    const CDwgSequence& m_attributes;
    const CDwgWriting& m_writing;
    std::uint16_t m_nType = 0;
};

} // namespace

CDwgEntityCommon DwgEntityCommonOf(const AcDbEntity& entity, const CDwgWriting& writing) {
    const CDwgHandleMap& handles = writing.m_handles;
    const std::uint64_t nHandle = handles.Of(entity.objectId());
    const CDwgRecord* const pFormer = writing.m_pOrigin ? writing.m_pOrigin->Find(nHandle) : nullptr;
    CDwgEntityCommon common;
    if (pFormer) {
        CDwgRecordReader io(*pFormer);
        FileEntityCommon(io, common);
    }
    common.m_nColor = entity.colorIndex();
    common.m_arReactors = DwgReactorsOf(entity, writing);
    common.m_hExtensions = writing.StillThere(common.m_hExtensions);
    common.m_hPlotStyle = writing.StillThere(common.m_hPlotStyle);
    const AcDbObjectId idLayers = writing.m_database.layerTableId();
    const std::uint64_t nLayer = handles.Of(entity.layerId());
    common.m_hLayer = HardPointer(nLayer ? nLayer : handles.Of(RecordNamed(idLayers, L"0")));
    TakeLinetype(common, entity.linetypeId(), writing);
    TakePicture(common, entity, writing);
    return common;
}

CDwgRecord WriteDwgEntity(const AcDbEntity& entity, const CDwgEntityCommon& common,
                          const CDwgSequence& attributes, const CDwgWriting& writing) {
    CDwgRecordWriter io;
    FileEntityCommon(io, common);
    std::uint16_t nType = CEntityWriter(io, entity, attributes, writing).Write();
    if (nType == 0) nType = WriteDwgOwnPart(io, entity, writing);
    const std::uint64_t nHandle = writing.m_handles.Of(entity.objectId());
    if (io.Failed()) RefuseDwgObject(nHandle, "a text is too long for a file.");
    CDwgRecord record = io.TakeRecord(nType, nHandle);
    record.m_arExtended = DwgExtendedDataOf(entity, writing);
    return record;
}
