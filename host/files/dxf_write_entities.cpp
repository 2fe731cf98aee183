#include "host/files/dxf_write_entities.h"

#include "host/files/dxf_entity_types.h"
#include "host/files/dxf_write_proxies.h"
#include "host/files/dxf_xdata.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_proxy.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <algorithm>

namespace {

/// Where an entity stands in the file.
struct CPlace {
    AcDbHandle m_owner;
    bool m_bOnPaper;
};

std::string TypeName(const AcDbEntity& entity) {
    return GbkFromWide(entity.isA()->dxfName());
}

/// The type that an entity has where its class is known.
std::string OriginalName(const AcDbEntity& entity) {
    const auto* const pProxy = dynamic_cast<const CProxy*>(&entity);
    return pProxy ? GbkFromWide(pProxy->originalDxfName()) : TypeName(entity);
}

/// What all entities have. A free one has the layer that it would get in the drawing.
void WriteProperties(CDxfOutput& out, std::string_view type, const AcDbEntity& entity, const CPlace& place) {
    const bool bFree = entity.objectId().isNull();
    out.Record(type, bFree ? out.NewHandle() : entity.handle(), place.m_owner);
    out.Subclass("AcDbEntity");
    if (place.m_bOnPaper) out.Whole(67, 1);
    out.Text(8, DxfName(entity.layerId().isNull() ? out.Database().clayer() : entity.layerId()));
    if (!entity.linetypeId().isNull()) out.Text(6, DxfName(entity.linetypeId()));
    if (!entity.PersistentReactors().empty()) out.Lose("reactors");
    if (entity.colorIndex() != g_nColorByLayer) out.Whole(62, entity.colorIndex());
}

/// Writes an entity of a type that files have; false, and counted as lost, when it cannot be.
bool WriteOrdinary(CDxfOutput& out, const AcDbEntity& entity, const CPlace& place) {
    const std::size_t nBefore = out.Bytes().size();
    const CDxfEntityType* const pType = DxfEntityType(entity);
    if (pType) WriteProperties(out, TypeName(entity), entity, place);
    const bool bWritten = pType && pType->m_pWrite(out, entity);
    if (bWritten) WriteDxfXData(out, entity);
    if (out.KeepIf(bWritten, nBefore)) return true;
    out.Lose(TypeName(entity));
    return false;
}

void WriteAttributes(CDxfOutput& out, const AcDbBlockReference& reference, bool bOnPaper) {
    const std::vector<AcDbObjectId> ids = reference.AttributeIds();
    if (ids.empty()) return;
    const CPlace place{reference.handle(), bOnPaper};
    for (const AcDbObjectId& id : ids)
        if (const CDbOpen<AcDbAttribute> attribute(id); attribute)
            WriteOrdinary(out, *attribute.Get(), place);
    out.Record("SEQEND", out.NewHandle(), reference.handle());
    out.Subclass("AcDbEntity");
    out.Text(8, DxfName(reference.layerId()));
}

/// Writes a custom entity in either form.
struct CWriteCustom {
    CDxfOutput& m_out;
    const AcDbEntity& m_entity;
    const CPlace& m_place;

    void operator()(const CDxfExplosions& explosions) const {
        const CDxfExplosions::CParts* const pParts = explosions.PartsOf(m_entity);
        if (!pParts) return m_out.Lose(OriginalName(m_entity));
        for (const std::unique_ptr<AcDbEntity>& pPart : *pParts)
            WriteOrdinary(m_out, *pPart, m_place);
    }

    void operator()(const CCustomPictures& pictures) const {
        if (!IsDxfProxy(m_entity)) return m_out.Lose(OriginalName(m_entity));
        const std::size_t nBefore = m_out.Bytes().size();
        WriteProperties(m_out, "ACAD_PROXY_ENTITY", m_entity, m_place);
        WriteDxfProxy(m_out, m_entity, pictures.Of(m_entity));
        WriteDxfXData(m_out, m_entity);
        if (!m_out.KeepIf(true, nBefore)) m_out.Lose(TypeName(m_entity));
    }
};

void WriteEntitiesOf(CDxfOutput& out, const CDxfCustomEntities& customs, const AcDbBlockTableRecord& block) {
    const CPlace place{block.handle(), IsDxfPaperSpace(block.Name())};
    for (const AcDbObjectId& id : block.EntityIds()) {
        const CDbOpen<AcDbEntity> entity(id);
        if (!entity) {
            out.Lose("entity in use");
        } else if (!DxfEntityType(*entity.Get())) {
            std::visit(CWriteCustom{out, *entity.Get(), place}, customs);
        } else if (WriteOrdinary(out, *entity.Get(), place)) {
            const auto* const pReference = AcDbBlockReference::cast(entity.Get());
            if (pReference) WriteAttributes(out, *pReference, place.m_bOnPaper);
        }
    }
}

/// Model space and the sheet in front, whose entities stand in a section of their own.
bool HasOwnSection(const AcDbBlockTableRecord& block) {
    return SameName(block.Name(), ACDB_MODEL_SPACE) || SameName(block.Name(), ACDB_PAPER_SPACE);
}

/// The record that begins or ends a block.
void WriteBoundary(CDxfOutput& out, std::string_view type, const AcDbBlockTableRecord& block) {
    out.Record(type, out.NewHandle(), block.handle());
    out.Subclass("AcDbEntity");
    if (IsDxfPaperSpace(block.Name())) out.Whole(67, 1);
    out.Word(8, "0");
}

/// Whether a reference to the block is given attributes.
bool AsksForAttributes(const AcDbBlockTableRecord& block) {
    const std::vector<AcDbObjectId> ids = block.EntityIds();
    return std::any_of(ids.begin(), ids.end(), [](const AcDbObjectId& id) {
        const CDbOpen<AcDbAttributeDefinition> definition(id);
        return definition && !definition->isConstant();
    });
}

int BlockFlags(const AcDbBlockTableRecord& block) {
    constexpr int nAnonymous = 1, nWithAttributes = 2;
    const bool bSpace = IsDxfPaperSpace(block.Name()) || SameName(block.Name(), ACDB_MODEL_SPACE);
    return (block.Name().starts_with(L'*') && !bSpace ? nAnonymous : 0) |
           (AsksForAttributes(block) ? nWithAttributes : 0);
}

void WriteBlock(CDxfOutput& out, const CDxfCustomEntities& customs, const AcDbBlockTableRecord& block) {
    WriteBoundary(out, "BLOCK", block);
    out.Subclass("AcDbBlockBegin");
    out.Text(2, block.Name());
    out.Whole(70, BlockFlags(block));
    const std::size_t nBefore = out.Bytes().size();
    out.Point(10, block.origin());
    if (!out.KeepIf(true, nBefore)) out.Point(10, AcGePoint3d::kOrigin);
    out.Text(3, block.Name());
    out.Word(1, "");
    if (!HasOwnSection(block)) WriteEntitiesOf(out, customs, block);
    WriteBoundary(out, "ENDBLK", block);
    out.Subclass("AcDbBlockEnd");
}

} // namespace

void WriteDxfBlocks(CDxfOutput& out, const CDxfCustomEntities& customs) {
    out.BeginSection("BLOCKS");
    for (const AcDbObjectId& id : LivingRecords(out.Database().blockTableId()))
        if (const CDbOpen<AcDbBlockTableRecord> block(id); block) WriteBlock(out, customs, *block.Get());
    out.EndSection();
}

void WriteDxfEntities(CDxfOutput& out, const CDxfCustomEntities& customs) {
    out.BeginSection("ENTITIES");
    for (const AcDbObjectId& id : LivingRecords(out.Database().blockTableId()))
        if (const CDbOpen<AcDbBlockTableRecord> block(id); block && HasOwnSection(*block.Get()))
            WriteEntitiesOf(out, customs, *block.Get());
    out.EndSection();
}
