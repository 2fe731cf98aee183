#include "host/files/dwg_block_reader.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_custom_entities.h"
#include "host/files/dwg_entity_reader.h"
#include "host/files/dwg_handle_map.h"
#include "platform/acad/db_block_reference.h"

#include <algorithm>
#include <set>

namespace {

class CBlockReader {
public:
    explicit CBlockReader(CDwgReading& reading)
        : m_reading(reading) {}

    void Read() {
        for (const auto& [nHandle, record] : m_reading.m_records)
            if (record.m_nType == g_nDwgBlockHeader) ReadHeader(record);
        for (const auto& [nHandle, header] : m_headers)
            ReadEntities(header, m_reading.m_ids.at(nHandle));
        for (const auto& [nHandle, id] : m_custom)
            ReadDwgCustomEntity(*CDbOpen<AcDbEntity>(id, AcDb::kForWrite).Get(),
                                m_reading.m_records.at(nHandle), m_reading);
    }

private:
    const CDwgRecord* Find(std::uint64_t nHandle) const {
        const auto found = m_reading.m_records.find(nHandle);
        return found == m_reading.m_records.end() ? nullptr : &found->second;
    }

    void ReadHeader(const CDwgRecord& record) {
        auto header = ReadDwgValue<CDwgBlockHeader>(record, DWG_FILED(FileBlockHeader));
        const std::wstring strName = m_reading.Text(NameOf(header));
        AcDbObjectId id = RecordNamed(m_reading.m_database.blockTableId(), strName.c_str());
        if (id.isNull()) id = AddBlock(strName, record.m_nHandle);
        m_reading.m_ids[record.m_nHandle] = id;
        const CDbOpen<AcDbBlockTableRecord> block(id, AcDb::kForWrite);
        block->setOrigin(header.m_ptBase);
        ReadDwgExtendedData(*block.Get(), record, m_reading);
        m_headers.emplace(record.m_nHandle, std::move(header));
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
        TakeDwgHandle(m_reading, nHandle);
        AcDbObjectId id;
        if (table->add(id, pBlock.get()) != Acad::eOk) RefuseDwgObject(nHandle, "a block without a name.");
        pBlock.release()->close();
        return id;
    }

    /// An entity of a fixed type, or an empty one of a class of the file.
    CDwgReadEntity ReadEntity(const CDwgRecord& record) const {
        CDwgReadEntity read = ReadDwgEntity(record, m_reading);
        if (read.m_pEntity) return read;
        const auto& classes = m_reading.m_classes;
        const auto found = std::find_if(classes.begin(), classes.end(), [&](const CDwgClass& entry) {
            return entry.m_nNumber == record.m_nType;
        });
        if (found == classes.end())
            RefuseDwgObject(record.m_nHandle, "an entity of its type cannot be kept.");
        read.m_pEntity = MakeDwgCustomEntity(*found, m_reading.m_text);
        if (!read.m_pEntity) RefuseDwgObject(record.m_nHandle, "an entity of its class cannot be kept.");
        CDwgRecordReader io(record);
        FileEntityCommon(io, read.m_common);
        return read;
    }

    /// Follows a chain of entities; each is read once, whatever the chain says.
    template <class Take>
    void FollowChain(std::uint64_t nFirst, std::uint64_t nLast, Take take) {
        for (std::uint64_t nHandle = nFirst; nHandle != 0;) {
            const CDwgRecord* const pRecord = Find(nHandle);
            if (!pRecord || !m_taken.insert(nHandle).second) return;
            CDwgReadEntity read = ReadEntity(*pRecord);
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
                        const CDbOpen<AcDbBlockTableRecord> block(idBlock, AcDb::kForWrite);
                        TakeDwgHandle(m_reading, record.m_nHandle);
                        AcDbEntity* const pEntity = read.m_pEntity.release();
                        AcDbObjectId id;
                        block->appendAcDbEntity(id, pEntity);
                        Finish(*pEntity, record, id);
                        if (read.m_nFirstAttribute) ReadAttributes(read, id);
                    });
    }

    void ReadAttributes(const CDwgReadEntity& reference, AcDbObjectId idReference) {
        FollowChain(reference.m_nFirstAttribute, reference.m_nLastAttribute,
                    [&](const CDwgRecord& record, CDwgReadEntity read) {
                        if (!AcDbAttribute::cast(read.m_pEntity.get()))
                            RefuseDwgObject(record.m_nHandle,
                                            "an insertion has it as an attribute, which it is not.");
                        const CDbOpen<AcDbBlockReference> open(idReference, AcDb::kForWrite);
                        TakeDwgHandle(m_reading, record.m_nHandle);
                        auto* const pAttribute = static_cast<AcDbAttribute*>(read.m_pEntity.release());
                        AcDbObjectId id;
                        open->appendAttribute(id, pAttribute);
                        Finish(*pAttribute, record, id);
                    });
    }

    /// What can be given only to an entity of the drawing; closes it. Custom ones read it themselves, once
    /// all is there that they may refer to.
    void Finish(AcDbEntity& entity, const CDwgRecord& record, AcDbObjectId id) {
        m_reading.m_ids[record.m_nHandle] = id;
        if (record.m_nType < g_nDwgFirstClass) {
            ReadDwgExtendedData(entity, record, m_reading);
        } else {
            m_custom.emplace_back(record.m_nHandle, id);
        }
        entity.close();
    }

    CDwgReading& m_reading;
    std::map<std::uint64_t, CDwgBlockHeader> m_headers;
    std::set<std::uint64_t> m_taken;
    std::vector<std::pair<std::uint64_t, AcDbObjectId>> m_custom;
};

} // namespace

void ReadDwgBlocks(CDwgReading& reading) {
    CBlockReader(reading).Read();
}
