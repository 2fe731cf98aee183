#include "host/files/dwg_block_reader.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_entity_reader.h"
#include "host/files/dwg_handle_map.h"
#include "host/files/dwg_table_records.h"
#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_stub.h"

#include <set>

namespace {

class CBlockReader {
public:
    explicit CBlockReader(CDwgReading& reading)
        : m_reading(reading) {}

    void Read() {
        const CDwgHandle& hBlocks = m_reading.m_pOrigin->m_file.m_variables.m_roots.m_hBlocks;
        if (m_reading.m_pOrigin->Find(hBlocks.m_nValue))
            IdentifyDwg(m_reading, m_reading.m_database.blockTableId(), hBlocks.m_nValue);
        for (const auto& [nHandle, record] : m_reading.m_pOrigin->m_records)
            if (record.m_nType == g_nDwgBlockHeader) ReadHeader(record);
        for (const auto& [nHandle, header] : m_headers)
            ReadEntities(header, m_reading.m_ids.at(nHandle));
        ReadUnchained();
    }

private:
    const CDwgRecord* Find(std::uint64_t nHandle) const { return m_reading.m_pOrigin->Find(nHandle); }

    void ReadHeader(const CDwgRecord& record) {
        auto header = ReadDwgValue<CDwgBlockHeader>(record, DWG_FILED(FileBlockHeader));
        const std::wstring strName = m_reading.Text(NameOf(header));
        AcDbObjectId id = RecordNamed(m_reading.m_database.blockTableId(), strName.c_str());
        if (id.isNull()) id = AddBlock(strName, record.m_nHandle);
        IdentifyDwg(m_reading, id, record.m_nHandle);
        CDbOpen<AcDbBlockTableRecord>(id, AcDb::kForWrite)->setOrigin(header.m_ptBase);
        TakeStructure(header.m_hBlock.m_nValue, g_nDwgBlock);
        TakeStructure(header.m_hBlockEnd.m_nValue, g_nDwgBlockEnd);
        m_headers.emplace(record.m_nHandle, std::move(header));
    }

    /// What stands only in the file is written anew with what it belongs to; a wrong link leads to another's.
    void TakeStructure(std::uint64_t nHandle, std::uint16_t nType) {
        const CDwgRecord* const pRecord = Find(nHandle);
        if (pRecord && pRecord->m_nType == nType) m_taken.insert(nHandle);
    }

    /// The block's own entity has the full name; the header may leave a number out.
    std::string NameOf(const CDwgBlockHeader& header) const {
        const CDwgRecord* const pBlock = Find(header.m_hBlock.m_nValue);
        if (!pBlock || pBlock->m_nType != g_nDwgBlock) return header.m_strName;
        CDwgEntityCommon common;
        const auto strName = ReadDwgValue<std::string>(*pBlock, [&common](auto& io, auto& value) {
            FileEntityCommon(io, common);
            io.T(value);
        });
        return strName.empty() ? header.m_strName : strName;
    }

    AcDbObjectId AddBlock(const std::wstring& strName, std::uint64_t nHandle) {
        const CDbOpen<AcDbBlockTable> table(m_reading.m_database.blockTableId(), AcDb::kForWrite);
        auto pBlock = std::make_unique<AcDbBlockTableRecord>();
        pBlock->setName(strName.c_str());
        AcDbObjectId id;
        if (table->add(id, pBlock.get()) != Acad::eOk) RefuseDwgObject(nHandle, "a block without a name.");
        pBlock.release()->close();
        return id;
    }

    /// Whether a record that a chain leads to is an entity's; of a type that is none nothing else is known.
    bool MayBeEntity(const CDwgRecord& record) const {
        const CDwgOrigin& origin = *m_reading.m_pOrigin;
        return origin.IsEntity(record.m_nType) || !origin.IsKnown(record.m_nType);
    }

    /// Follows a chain of entities up to the last one, to one that is taken, or to what is none.
    template <class Take>
    void FollowChain(std::uint64_t nFirst, std::uint64_t nLast, Take take) {
        std::set<std::uint64_t> passed;
        for (std::uint64_t nHandle = nFirst; nHandle != 0;) {
            const CDwgRecord* const pRecord = Find(nHandle);
            if (!pRecord || !MayBeEntity(*pRecord) || m_taken.contains(nHandle)) return;
            if (!passed.insert(nHandle).second) return;
            CDwgReadEntity read = ReadDwgEntity(*pRecord, m_reading);
            const bool bLast = nHandle == nLast;
            const std::uint64_t nNext =
                read.m_common.m_bNeighbours ? nHandle + 1 : read.m_common.m_hNext.m_nValue;
            take(*pRecord, std::move(read));
            if (bLast) return;
            nHandle = nNext;
        }
    }

    void ReadEntities(const CDwgBlockHeader& header, AcDbObjectId idBlock) {
        FollowChain(header.m_hFirst.m_nValue, header.m_hLast.m_nValue,
                    [&](const CDwgRecord& record, CDwgReadEntity read) {
                        AppendEntity(record, std::move(read), idBlock);
                    });
    }

    void AppendEntity(const CDwgRecord& record, CDwgReadEntity read, AcDbObjectId idBlock) {
        m_reading.CheckGoesOn();
        AcDbObjectId id;
        AcDbEntity* const pEntity = read.m_pEntity.release();
        CDbOpen<AcDbBlockTableRecord>(idBlock, AcDb::kForWrite)->appendAcDbEntity(id, pEntity);
        Finish(*pEntity, record);
        if (AcDbBlockReference::cast(pEntity)) ReadAttributes(read, id);
    }

    void ReadAttributes(const CDwgReadEntity& reference, AcDbObjectId idReference) {
        TakeStructure(reference.m_nSequenceEnd, g_nDwgSequenceEnd);
        FollowChain(reference.m_nFirstAttribute, reference.m_nLastAttribute,
                    [&](const CDwgRecord& record, CDwgReadEntity read) {
                        if (AcDbAttribute::cast(read.m_pEntity.get()))
                            AppendAttribute(record, std::move(read), idReference);
                    });
    }

    void AppendAttribute(const CDwgRecord& record, CDwgReadEntity read, AcDbObjectId idReference) {
        auto* const pAttribute = static_cast<AcDbAttribute*>(read.m_pEntity.release());
        CDbOpen<AcDbBlockReference>(idReference, AcDb::kForWrite)->appendAttribute(pAttribute);
        Finish(*pAttribute, record);
    }

    void Finish(AcDbEntity& entity, const CDwgRecord& record) {
        m_taken.insert(record.m_nHandle);
        IdentifyDwg(m_reading, entity.objectId(), record.m_nHandle);
        entity.close();
    }

    /// The entities that no chain leads to belong to the owners that they name.
    void ReadUnchained() {
        for (const auto& [nHandle, record] : m_reading.m_pOrigin->m_records) {
            if (m_taken.contains(nHandle) || !m_reading.m_pOrigin->IsEntity(record.m_nType)) continue;
            CDwgReadEntity read = ReadDwgEntity(record, m_reading);
            const AcDbObjectId idOwner = OwnerOf(read.m_common);
            if (PeekObject<AcDbBlockTableRecord>(idOwner)) {
                AppendEntity(record, std::move(read), idOwner);
            } else if (PeekObject<AcDbBlockReference>(idOwner) && AcDbAttribute::cast(read.m_pEntity.get())) {
                AppendAttribute(record, std::move(read), idOwner);
            } else {
                AddApart(record, idOwner);
            }
        }
    }

    AcDbObjectId OwnerOf(const CDwgEntityCommon& common) const {
        const CDwgRoots& roots = m_reading.m_pOrigin->m_file.m_variables.m_roots;
        if (common.m_nPlace == g_nDwgInModelSpace) return m_reading.IdOf(roots.m_hModelSpace);
        if (common.m_nPlace == g_nDwgInPaperSpace) return m_reading.IdOf(roots.m_hPaperSpace);
        return m_reading.IdOf(common.m_hOwner);
    }

    /// An entity that stands in no block, such as a vertex, is only kept.
    void AddApart(const CDwgRecord& record, AcDbObjectId idOwner) {
        CDwgReadEntity read = KeepDwgEntity(record, m_reading);
        AcDbObjectId id;
        AcDbEntity* const pEntity = read.m_pEntity.release();
        m_reading.m_database.AddObject(id, pEntity, idOwner);
        Finish(*pEntity, record);
    }

    CDwgReading& m_reading;
    std::map<std::uint64_t, CDwgBlockHeader> m_headers;
    std::set<std::uint64_t> m_taken; ///< and what is written anew with those taken
};

} // namespace

void ReadDwgBlocks(CDwgReading& reading) {
    CBlockReader(reading).Read();
}
